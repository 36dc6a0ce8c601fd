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
        folder=${folder%/}
        [[ -d $folder ]] && printf '%s\n' "${folder##*/}"
    done
}

# The values of a key in JSON files of the workspace, which have one key a line.
_vornelctl_values() {
    local key=$1
    shift
    sed -n 's/^ *"'"$key"'": "\(.*\)",\{0,1\}$/\1/p' "$@" </dev/null 2>/dev/null
}

# The command among the words before the cursor, and how many operands follow it. Sets `command` and `operands`.
_vornelctl_command() {
    local i
    command='' operands=0
    for ((i = 1; i < cword; ++i)); do
        case ${words[i]} in
            --workspace | --claude | --codex | --search | --category | --maturity | --choose | --prefer | --except | --name | \
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

# The options that a command takes.
_vornelctl_options() {
    local options=(--workspace --claude --codex --json --help --version)
    case $1 in
        list) options+=(--search --category --maturity --trash) ;;
        import) options+=(--choose --prefer --except --replace) ;;
        create) options+=(--name --summary --category --tags --maturity --file --replace) ;;
        save) options+=(--expect --file) ;;
        sync) options+=(--all) ;;
        restore) options+=(--replace) ;;
    esac
    printf '%s\n' "${options[@]}"
}

# What may stand as the next operand of a command.
_vornelctl_operands() {
    local workspace=$1
    case $command:$operands in
        :*) printf '%s\n' status list show diff scan import create save sync set-aside assign category trash restore \
            delete empty-trash ;;
        category:*) printf '%s\n' create update delete ;;
        show:0 | diff:0 | save:0 | set-aside:0 | sync:* | trash:* | assign:[1-9]*) _vornelctl_folders "$workspace/skills" ;;
        set-aside:1) printf '%s\n' claude codex ;;
        assign:0 | "category update:0" | "category delete:0")
            _vornelctl_values id "$workspace/.vornel/categories.json" ;;
        restore:0 | delete:0) _vornelctl_values slug "$workspace"/.vornel/trash/*/vornel.json ;;
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
    local cur prev words cword split command operands workspace
    _init_completion -s || return
    workspace=$(_vornelctl_workspace)
    _vornelctl_command
    case $prev in
        --workspace | --claude | --codex)
            _filedir -d
            return
            ;;
        --file)
            _filedir
            return
            ;;
        --search | --name | --summary | --tags | --expect | --choose | --except) return ;;
        --category) _vornelctl_offer < <(_vornelctl_values id "$workspace/.vornel/categories.json") ;;
        --maturity) _vornelctl_offer < <(printf '%s\n' draft ready active obsolete) ;;
        --prefer) _vornelctl_offer < <(printf '%s\n' claude codex) ;;
        *)
            if [[ $cur == -* ]]; then
                _vornelctl_offer < <(_vornelctl_options "$command")
            else
                _vornelctl_offer < <(_vornelctl_operands "$workspace")
            fi
            ;;
    esac
}
complete -F _vornelctl vornelctl
