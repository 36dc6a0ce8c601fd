# Completes the command line of vornelctl in bash. What the workspace holds is read from its folders: starting the
# program would make a workspace where there is none, and take its time at each key.

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
        [[ -d $folder ]] && basename "$folder"
    done
}

# The values of a key in JSON files of the workspace, which have one key a line.
_vornelctl_values() {
    local key=$1
    shift
    sed -n 's/^ *"'"$key"'": "\(.*\)",\{0,1\}$/\1/p' "$@" 2>/dev/null
}

# The command among the words before the cursor, and how many operands follow it. Sets `command` and `operands`.
_vornelctl_command() {
    local i
    command='' operands=0
    for ((i = 1; i < cword; ++i)); do
        case ${words[i]} in
            --workspace | --claude | --codex | --search | --category | --maturity | --choose | --prefer | --name | \
                --summary | --tags | --file | --expect) ((++i)) ;;
            -*) ;;
            *)
                if [[ -z $command ]]; then
                    command=${words[i]}
                elif [[ $command == category ]]; then
                    command="category ${words[i]}"
                else
                    ((++operands))
                fi
                ;;
        esac
    done
}

# The options that a command takes besides those common to all.
_vornelctl_options() {
    case $1 in
        list) echo --search --category --maturity ;;
        import) echo --choose --prefer ;;
        create) echo --name --summary --category --tags --maturity --file ;;
        save) echo --expect --file ;;
        sync) echo --all ;;
    esac
}

# What may stand as the next operand of a command.
_vornelctl_operands() {
    local workspace=$1
    case $command:$operands in
        :*) printf '%s\n' status list show diff scan import create save sync assign category trash restore delete \
            empty-trash ;;
        category:*) printf '%s\n' create update delete ;;
        show:0 | diff:0 | save:0 | sync:* | trash:* | assign:[1-9]*) _vornelctl_folders "$workspace/skills" ;;
        assign:0 | "category update:0" | "category delete:0")
            _vornelctl_values id "$workspace/.vornel/categories.json" ;;
        restore:0 | delete:0) _vornelctl_values slug "$workspace"/.vornel/trash/*/vornel.json ;;
    esac
}

_vornelctl() {
    local cur prev words cword split command operands workspace
    _init_completion -s || return
    workspace=$(_vornelctl_workspace)
    _vornelctl_command
    local candidates
    case $prev in
        --workspace | --claude | --codex)
            _filedir -d
            return
            ;;
        --file)
            _filedir
            return
            ;;
        --search | --name | --summary | --tags | --expect | --choose) return ;;
        --category) candidates=$(_vornelctl_values id "$workspace/.vornel/categories.json") ;;
        --maturity) candidates="draft ready active obsolete" ;;
        --prefer) candidates="claude codex" ;;
        *)
            if [[ $cur == -* ]]; then
                candidates="--workspace --claude --codex --json --help --version $(_vornelctl_options "$command")"
            else
                candidates=$(_vornelctl_operands "$workspace")
            fi
            ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$candidates" -- "$cur")
}
complete -F _vornelctl vornelctl
