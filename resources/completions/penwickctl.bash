# Bash completion for penwickctl. Category and payway names are asked of the
# running program; months and files are left to the user and the shell.

_penwickctl_names()
{
    local name IFS=$'\n'
    for name in $(penwickctl "$1" 2>/dev/null); do
        [[ $name == "$2"* ]] && COMPREPLY+=("$(printf '%q' "$name")")
    done
}

_penwickctl()
{
    local cur=${COMP_WORDS[COMP_CWORD]}
    local prev=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()

    if ((COMP_CWORD == 1)); then
        COMPREPLY=($(compgen -W "categories payways show book list search sort export import budget schedules dump --help" -- "$cur"))
        return
    fi

    # An import's --category names the file's category first: nothing to offer.
    if [[ ${COMP_WORDS[1]} == import ]]; then
        case $prev in
        --category) return ;;
        --format) COMPREPLY=($(compgen -W "csv qif ofx xhb" -- "$cur")); return ;;
        esac
        if [[ $cur != -* ]]; then
            compopt -o filenames 2>/dev/null
            COMPREPLY=($(compgen -f -- "$cur"))
            return
        fi
        COMPREPLY=($(compgen -W "--format --dry-run --category --json --help" -- "$cur"))
        return
    fi

    case $prev in
    --category) _penwickctl_names categories "$cur"; return ;;
    --payway) _penwickctl_names payways "$cur"; return ;;
    --key) COMPREPLY=($(compgen -W "Date Category Details Amount Payway" -- "$cur")); return ;;
    --amount | --details | --year | --month | --date | --days | --words | --min | --max) return ;;
    esac

    local options
    case ${COMP_WORDS[1]} in
    categories | payways | list | budget | schedules) options="--json" ;;
    show) options="input list graph balance" ;;
    book) options="--amount --category --details --payway --year --month --date --json" ;;
    search) options="--days --words --category --payway --min --max --json" ;;
    sort) options="--key --ascend --descend --json" ;;
    export)
        if [[ $prev == --out ]]; then
            compopt -o filenames 2>/dev/null
            COMPREPLY=($(compgen -f -- "$cur"))
            return
        fi
        options="all --out"
        ;;
    dump)
        if [[ $cur != -* ]]; then
            compopt -o filenames 2>/dev/null
            COMPREPLY=($(compgen -f -- "$cur"))
            return
        fi
        options="--entries"
        ;;
    *) return ;;
    esac
    COMPREPLY=($(compgen -W "$options --help" -- "$cur"))
}

complete -F _penwickctl penwickctl
