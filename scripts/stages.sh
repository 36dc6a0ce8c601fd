# shellcheck shell=bash
# Sourced by scripts of several stages: runs them one after the other and prints at the end how long each has taken, those
# of the scripts that it calls included.

# Runs a command as a stage of this name, which is written down before and its seconds after it.
stage() {
    local start=$SECONDS
    printf '\n== %s\n' "$1"
    printf '%s' "$1" >>"$VORNEL_STAGES"
    "${@:2}"
    printf '\t%d\n' $((SECONDS - start)) >>"$VORNEL_STAGES"
}

# Prints the stages with their sum, and the one that has failed.
print_stages() {
    printf '\n'
    awk -F '\t' 'NF < 2 { failed = $1; next }
        { printf "%3d min %02d s  %s\n", $2 / 60, $2 % 60, $1; sum += $2 }
        END {
            printf "%3d min %02d s  in all\n", sum / 60, sum % 60
            if (failed != "") print "Failed: " failed
        }' "$VORNEL_STAGES"
}

# The script that was called first prints them all.
if [ -z "${VORNEL_STAGES-}" ]; then
    VORNEL_STAGES=$(mktemp)
    export VORNEL_STAGES
    trap 'print_stages; rm -f "$VORNEL_STAGES"' EXIT
fi
