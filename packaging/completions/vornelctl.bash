# Completes the command line of vornelctl in bash. Commands and options are those that its help states. What the workspace
# holds is read from its folders: any command would make a workspace where there is none, and take its time at each key.

# Reads, once, the syntaxes that the help states: under "vornelctl list", for example, the options of that command in
# `_vornelctl_options`, and what stands for its operands in `_vornelctl_operands`; under "vornelctl list --search", what stands
# for that option's value in `_vornelctl_forms`. Options common to all are under "vornelctl".
_vornelctl_read_help() {
    local help words word form command option
    [[ -n ${_vornelctl_options[*]-} ]] && return
    declare -gA _vornelctl_options=() _vornelctl_operands=() _vornelctl_forms=()
    help=$("$1" --help 2>/dev/null)
    while read -ra words; do
        command=vornelctl option=''
        for word in "${words[@]}"; do
            form=${word//[][()]/}
            case $form in
                --[a-z]*)
                    option=$form
                    _vornelctl_options[$command]+="$form "
                    ;;
                -* | '|') ;;
                *)
                    if [[ -n $option ]]; then
                        _vornelctl_forms["$command $option"]=${form%…}
                    elif [[ $form == [[:lower:]]* && $form != *'|'* ]]; then
                        command+=" $form"
                        _vornelctl_operands[$command]+=''
                    else
                        _vornelctl_operands[$command]+="$form "
                    fi
                    option=''
                    ;;
            esac
            [[ $word == *[]\)]* ]] && option=''
        done
    done < <(sed -n 's/^  \([^ ]\)/\1/p' <<<"${help//$'\n          '/ }")
}

# The workspace that the words of the command line mean.
_vornelctl_workspace() {
    local workspace=~/VORNEL i
    [[ ${VORNEL_WORKSPACE_PATH-} == /* ]] && workspace=$VORNEL_WORKSPACE_PATH
    for ((i = 1; i < cword; ++i)); do
        case ${words[i]} in
            --workspace) workspace=${words[i + 1]} ;;
            --workspace=*) workspace=${words[i]#*=} ;;
        esac
    done
    printf '%s' "${workspace/#~\//$HOME/}"
}

# The names of the folders in a folder.
_vornelctl_folders() {
    local folder
    for folder in "$1"/*/; do
        folder=${folder%/}
        [[ -d $folder ]] && printf '%s\n' "${folder##*/}"
    done
}

# The names of what was set aside.
_vornelctl_recovery() {
    local entry
    for entry in "$1"/*; do
        [[ -e $entry || -L $entry ]] && printf '%s\n' "${entry##*/}"
    done
}

# The values of a key in JSON files of the workspace, which have one key a line.
_vornelctl_values() {
    local key=$1
    shift
    sed -n 's/^ *"'"$key"'": "\(.*\)",\{0,1\}$/\1/p' "$@" </dev/null 2>/dev/null
}

# The versions of the skill that stands on the command line.
_vornelctl_versions() {
    local word manifest
    for word in "${words[@]}"; do
        manifest=$1/skills/$word/vornel.json
        [[ -f $manifest ]] && _vornelctl_folders "$1/.vornel/history/$(_vornelctl_values id "$manifest")"
    done
}

# The files of the skill that stands on the command line.
_vornelctl_paths() {
    local word
    for word in "${words[@]}"; do
        [[ -f $1/skills/$word/vornel.json ]] &&
            find "$1/skills/$word" -mindepth 1 -name '.*' -prune -o -type f ! -name vornel.json -printf '%P\n'
    done
}

# The words that go on from a command: "create" from "vornelctl category".
_vornelctl_continuations() {
    printf '%s\n' "${!_vornelctl_operands[@]}" | sed -n "s/^$1 \([^ ]*\).*/\1/p" | sort -u
}

# What stands for the value of an option of the command, or of one common to all.
_vornelctl_form() {
    printf '%s' "${_vornelctl_forms["$command $1"]-${_vornelctl_forms["vornelctl $1"]-}}"
}

# The command among the words before the cursor, and how many operands follow it. Sets `command` and `operands`.
_vornelctl_command() {
    local i
    command=vornelctl operands=0
    for ((i = 1; i < cword; ++i)); do
        if [[ ${words[i]} == -* ]]; then
            [[ -n $(_vornelctl_form "${words[i]}") ]] && ((++i))
        elif ((operands == 0)) && _vornelctl_continuations "$command" | grep -qxF -e "${words[i]}"; then
            command+=" ${words[i]}"
        else
            ((++operands))
        fi
    done
}

# What may stand where the help has a form.
_vornelctl_candidates() {
    local workspace
    workspace=$(_vornelctl_workspace)
    case $1:$command in
        SKILL*:vornelctl\ restore | SKILL*:vornelctl\ delete) _vornelctl_values slug "$workspace"/.vornel/trash/*/vornel.json ;;
        SKILL*) _vornelctl_folders "$workspace/skills" ;;
        ID:* | ID…:*) _vornelctl_recovery "$workspace/.vornel/recovery" ;;
        CATÉGORIE*) _vornelctl_values id "$workspace/.vornel/categories.json" ;;
        VERSION*) _vornelctl_versions "$workspace" ;;
        CHEMIN*) _vornelctl_paths "$workspace" ;;
        *=*) ;;
        *'|'*) tr '|' '\n' <<<"$1" ;;
    esac
}

# Offers those lines of the standard input that go on from what is typed. They may be names of folders, which hold
# anything: none is ever expanded, and each is quoted for the command line.
_vornelctl_offer() {
    local candidate quoted
    while IFS= read -r candidate; do
        printf -v quoted %q "$candidate"
        [[ $candidate == "$cur"* || $quoted == "$cur"* ]] && COMPREPLY+=("$quoted")
    done
}

_vornelctl() {
    # shellcheck disable=SC2034 # what _init_completion sets
    local cur prev words cword split command operands form='' forms
    _init_completion -s || return
    _vornelctl_read_help "$1"
    _vornelctl_command
    [[ $prev == --* ]] && form=$(_vornelctl_form "$prev")
    case $form in
        DOSSIER) _filedir -d ;;
        FICHIER) _filedir ;;
        ?*) _vornelctl_offer < <(_vornelctl_candidates "$form") ;;
        *)
            read -ra forms <<<"${_vornelctl_operands[$command]-}"
            if [[ $cur == -* ]]; then
                _vornelctl_offer < <(printf '%s' "${_vornelctl_options[vornelctl]}" "${_vornelctl_options[$command]-}" | tr ' ' '\n')
            elif [[ ${forms[0]-} == SOURCE… ]]; then
                _filedir
            elif ((${#forms[@]} > operands)); then
                _vornelctl_offer < <(_vornelctl_candidates "${forms[operands]}")
            elif [[ ${forms[*]: -1} == *… ]]; then
                _vornelctl_offer < <(_vornelctl_candidates "${forms[*]: -1}")
            elif ((operands == 0)); then
                _vornelctl_offer < <(_vornelctl_continuations "$command")
            fi
            ;;
    esac
}
complete -F _vornelctl vornelctl
