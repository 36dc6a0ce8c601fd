# shellcheck shell=bash
# Sourced: a scratch copy of the demonstration library, removed when the script ends.

# Makes the copy and points the program at it, with settings of its own. Sets `demonstration`.
demonstration() {
    demonstration=$(mktemp -d)
    trap 'rm -rf "$demonstration"' EXIT
    cp -r "$1/demo/claude" "$1/demo/codex" "$demonstration"
    export XDG_CONFIG_HOME=$demonstration/config
    export VORNEL_WORKSPACE_PATH=$demonstration/VORNEL
    export VORNEL_CLAUDE_SKILLS_PATH=$demonstration/claude
    export VORNEL_CODEX_SKILLS_PATH=$demonstration/codex
}
