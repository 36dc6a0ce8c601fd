# shellcheck shell=bash
# Sourced by scripts of several stages: runs them one after the other and prints at the end how long each has taken, those
# of the scripts that it calls included.

# Runs a command as a stage of this name.
stage() {
    local start=$SECONDS
    running_stage=$1
    printf '\n== %s\n' "$1"
    "${@:2}"
    printf '%s\t%d\n' "$1" $((SECONDS - start)) >>"$VORNEL_STAGES"
    running_stage=
}

# Prints the stages with their sum, and the one that has failed.
print_stages() {
    printf '\n'
    awk -F '\t' '{ printf "%3d min %02d s  %s\n", $2 / 60, $2 % 60, $1; sum += $2 }
        END { printf "%3d min %02d s  in all\n", sum / 60, sum % 60 }' "$VORNEL_STAGES"
    [ -z "${running_stage-}" ] || echo "Failed: $running_stage"
}

# The script that was called first prints them all.
if [ -z "${VORNEL_STAGES-}" ]; then
    VORNEL_STAGES=$(mktemp)
    export VORNEL_STAGES
    trap 'print_stages; rm -f "$VORNEL_STAGES"' EXIT
fi
