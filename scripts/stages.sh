# Sourced by scripts of several stages: runs them one after the other and prints at the end how long each has taken, those
# of the scripts that it calls included.

# Runs a command as a stage of this name.
stage() {
    local name=$1 start=$SECONDS
    shift
    printf '\n== %s\n' "$name"
    "$@"
    printf '%s\t%d\n' "$name" $((SECONDS - start)) >>"$VORNEL_STAGES"
}

# Prints the stages with their sum, in the script that was called first.
print_stages() {
    [ "${owns_stages-}" ] || return 0
    printf '\n'
    awk -F '\t' '{ printf "%3d min %02d s  %s\n", $2 / 60, $2 % 60, $1; sum += $2 }
        END { printf "%3d min %02d s  in all\n", sum / 60, sum % 60 }' "$VORNEL_STAGES"
}

if [ -z "${VORNEL_STAGES-}" ]; then
    owns_stages=yes
    VORNEL_STAGES=$(mktemp)
    export VORNEL_STAGES
    trap 'rm -f "$VORNEL_STAGES"' EXIT
fi
