# Prints what zsh offers for the last word of each line of the standard input. Only an interactive zsh completes, so
# one is started in a terminal of its own; what its completion adds is written to a file.
zmodload zsh/zpty
typeset completions=$1:A offered=$PWD/capture

zpty shell zsh -f -i
zpty -w shell "PS1= fpath=(${(q)completions} \$fpath); autoload -U compinit && compinit -u -D"
zpty -w shell "compadd() {
    [[ \" \$* \" == *' '-[OAD]' '* ]] && { builtin compadd \"\$@\"; return; }
    local -a hits
    builtin compadd -A hits \"\$@\"
    print -rl -- \$hits >>${(q)offered}
    builtin compadd \"\$@\"
}"
zpty -w shell 'offer() { zle complete-word; zle kill-buffer; print -n "<off""ered>" }; zle -N offer; bindkey "^I" offer'
zpty -w shell 'print "<rea""dy>"'
zpty -r shell output '*<ready>*'

while IFS= read -r line; do
    : >$offered
    zpty -w -n shell "$line"$'\t'
    zpty -r shell output '*<offered>*'
    print -r -- ${(o)${(fu)"$(<$offered)"}%=} | sed 's/./ &/;s/^ *$//'
done
zpty -d shell
