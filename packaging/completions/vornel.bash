# Completes the command line of vornel in bash.
_vornel() {
    # shellcheck disable=SC2034 # what _init_completion sets
    local cur prev words cword
    _init_completion || return
    mapfile -t COMPREPLY < <(compgen -W "--help --version" -- "$cur")
}
complete -F _vornel vornel
