# Completion for ulmar-disc-status: its options, and the names of the registered publishers.
# shellcheck shell=bash

_ulmar_disc_status() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} word onlyNames=''
    local options='--discs-critical --discs-warning --help --ink-critical --ink-warning --json --metrics --monitor
        --names --timeout --version --watch'
    COMPREPLY=()
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        [[ $word != -- ]] || onlyNames=yes
    done
    if [[ ! $onlyNames ]]; then
        case $previous in
        -t | --timeout | --ink-warning | --ink-critical | --discs-warning | --discs-critical) return ;;
        esac
        if [[ $current == -* ]]; then
            mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
            return
        fi
    fi

    # Anybody may have chosen the names, so a completed name must never end a quote or be expanded. Inside quotes
    # it is inserted as it is, without the names for which that would be wrong. Otherwise it is escaped.
    local typed=$current unsafe='' name
    case $current in
    \"*) typed=${current#\"} unsafe='["$`\!]' ;;
    \'*) typed=${current#\'} unsafe="[']" ;;
    *)
        typed=${current//\\?/}
        [[ $typed != *[\"\']* ]] || return # a quote within the word
        typed=${current//\\/}
        ;;
    esac
    while IFS= read -r name; do
        [[ $name == "$typed"* ]] || continue
        [[ $name != -* || $onlyNames ]] || continue
        if [[ $unsafe ]]; then
            # shellcheck disable=SC2053 # a pattern
            [[ $name != *$unsafe* ]] || continue
        else
            printf -v name %q "$name"
        fi
        COMPREPLY+=("$name")
    done < <("${COMP_WORDS[0]}" --names 2>/dev/null)
}

complete -F _ulmar_disc_status ulmar-disc-status
