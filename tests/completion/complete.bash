# Prints what bash offers for the last word of each line of the standard input.
. /usr/share/bash-completion/bash_completion
# shellcheck source=packaging/completions/vornel.bash
. "$1/vornel.bash"
# shellcheck source=packaging/completions/vornelctl.bash
. "$1/vornelctl.bash"

# Splits a line as the shell does, where "=" ends a word, and a blank behind "\" doesn't.
while IFS= read -r COMP_LINE; do
    COMP_POINT=${#COMP_LINE}
    read -ra COMP_WORDS <<<"$(sed 's/=/ = /g; s/\\ /\x01/g' <<<"$COMP_LINE")"
    COMP_WORDS=("${COMP_WORDS[@]//$'\x01'/\\ }")
    [[ $COMP_LINE == *" " ]] && COMP_WORDS+=("")
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMPREPLY=()
    "_${COMP_WORDS[0]}" "${COMP_WORDS[0]}" || true
    offered=$(printf '%s\n' "${COMPREPLY[@]}" | sort | paste -sd ' ')
    echo "${offered:+ $offered}"
done
