#!/usr/bin/env bash
# Runs penwickctl's shell completions against a stand-in penwickctl that
# answers with fixed names, and checks what a user pressing Tab would get.
set -euo pipefail
completions=$1

fail() { echo "completion test: $*" >&2; exit 1; }

# Bash: the completion function fills COMPREPLY for the words typed so far.
bash_completes() {
    local expected=$1; shift
    local got
    got=$(bash -c '
        penwickctl() { case $1 in categories) printf "Groceries\nEating out\nIncome\n" ;; payways) printf "Cash\nCredit card\n" ;; esac; }
        source "$0"
        COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))
        _penwickctl
        printf "%s\n" "${COMPREPLY[@]}"' "$completions/penwickctl.bash" "$@")
    [[ $got == "$expected" ]] || fail "bash, '$*': expected '$expected', got '$got'"
}
bash_completes "show
search
sort
schedules" penwickctl s
bash_completes 'Eating\ out' penwickctl book --category Ea
bash_completes 'Credit\ card' penwickctl search 200605 --payway Cr
bash_completes "Amount" penwickctl sort 200605 --key Am
bash_completes "graph" penwickctl show gr
bash_completes "--ascend" penwickctl sort 200605 --as
bash_completes "--entries" penwickctl dump --en
bash_completes "--out" penwickctl export 2006 --o
bash_completes "--dry-run" penwickctl import bank.qif --dr
bash_completes "xhb" penwickctl import --format x

# Fish: complete -C answers what Tab offers, with descriptions.
fish_got=$(fish --no-config -c "
    function penwickctl; switch \$argv[1]; case categories; printf 'Groceries\nEating out\n'; end; end
    source $completions/penwickctl.fish
    complete -C 'penwickctl book --category Ea'")
[[ $fish_got == "Eating out"* ]] || fail "fish: expected 'Eating out', got '$fish_got'"

# Zsh completions run only inside an interactive shell: check that the file
# parses.
zsh -n "$completions/_penwickctl" || fail "zsh: the completion does not parse"
echo "completions answer as expected"
