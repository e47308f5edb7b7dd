# Completion for ulmar-disc-status: its options, and the names of the registered publishers.
# shellcheck shell=bash

_ulmar_disc_status() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local options='--discs-critical --discs-warning --help --ink-critical --ink-warning --json --metrics --monitor
        --names --timeout --version --watch'
    COMPREPLY=()
    case $previous in
    -t | --timeout | --ink-warning | --ink-critical | --discs-warning | --discs-critical) return ;;
    esac
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
        return
    fi

    # The typed part may be quoted, or have escaped blanks. A name that is completed is quoted in the same way.
    local typed=${current#[\"\']} name
    [[ $current == [\"\']* ]] || typed=${typed//\\/}
    while IFS= read -r name; do
        [[ $name == "$typed"* ]] || continue
        [[ $current == [\"\']* ]] || printf -v name %q "$name"
        COMPREPLY+=("$name")
    done < <("${COMP_WORDS[0]}" --names 2>/dev/null)
}

complete -F _ulmar_disc_status ulmar-disc-status
