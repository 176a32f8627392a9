# Fish completion for penwickctl. Category and payway names are asked of the
# running program.

set -l commands categories payways show book list search sort export import budget schedules dump

complete -c penwickctl -f
complete -c penwickctl -n "not __fish_seen_subcommand_from $commands" -a categories -d "Print the category names"
complete -c penwickctl -n "not __fish_seen_subcommand_from $commands" -a payways -d "Print the payway names"
complete -c penwickctl -n "not __fish_seen_subcommand_from $commands" -a show -d "Open a window"
complete -c penwickctl -n "not __fish_seen_subcommand_from $commands" -a book -d "Book one entry"
complete -c penwickctl -n "not __fish_seen_subcommand_from $commands" -a list -d "Print the entries of a month"
complete -c penwickctl -n "not __fish_seen_subcommand_from $commands" -a search -d "Search a month"
complete -c penwickctl -n "not __fish_seen_subcommand_from $commands" -a sort -d "Sort a month's entries"
complete -c penwickctl -n "not __fish_seen_subcommand_from $commands" -a export -d "Write entries as CSV"
complete -c penwickctl -n "not __fish_seen_subcommand_from $commands" -a import -d "Book the entries of a file"
complete -c penwickctl -n "not __fish_seen_subcommand_from $commands" -a budget -d "Print a month's spending, budget and what is left"
complete -c penwickctl -n "not __fish_seen_subcommand_from $commands" -a schedules -d "Print the entries that come back"
complete -c penwickctl -n "not __fish_seen_subcommand_from $commands" -a dump -d "Print an archive or a month file"
complete -c penwickctl -s h -l help -d "Show the usage"

complete -c penwickctl -n "__fish_seen_subcommand_from categories payways list book search sort import budget schedules" -l json -d "Print JSON"
complete -c penwickctl -n "__fish_seen_subcommand_from show" -a "input list graph balance"
complete -c penwickctl -n "__fish_seen_subcommand_from book search" -l category -x -a "(penwickctl categories 2>/dev/null)" -d "Category"
complete -c penwickctl -n "__fish_seen_subcommand_from book search" -l payway -x -a "(penwickctl payways 2>/dev/null)" -d "Payway"
complete -c penwickctl -n "__fish_seen_subcommand_from book" -l amount -x -d "The amount"
complete -c penwickctl -n "__fish_seen_subcommand_from book" -l details -x -d "What it was"
complete -c penwickctl -n "__fish_seen_subcommand_from book" -l year -x -d "The year"
complete -c penwickctl -n "__fish_seen_subcommand_from book" -l month -x -d "The month"
complete -c penwickctl -n "__fish_seen_subcommand_from book" -l date -x -d "The day"
complete -c penwickctl -n "__fish_seen_subcommand_from search" -l days -x -d "Days, as in 1,5,10-12"
complete -c penwickctl -n "__fish_seen_subcommand_from search" -l words -x -d "Words the details hold"
complete -c penwickctl -n "__fish_seen_subcommand_from search" -l min -x -d "The smallest amount"
complete -c penwickctl -n "__fish_seen_subcommand_from search" -l max -x -d "The largest amount"
complete -c penwickctl -n "__fish_seen_subcommand_from sort" -l key -x -a "Date Category Details Amount Payway" -d "Sort key"
complete -c penwickctl -n "__fish_seen_subcommand_from sort" -l ascend -d "Smallest first"
complete -c penwickctl -n "__fish_seen_subcommand_from sort" -l descend -d "Largest first"
complete -c penwickctl -n "__fish_seen_subcommand_from dump" -l entries -d "Print the entries of a month file"
complete -c penwickctl -n "__fish_seen_subcommand_from dump" -F
complete -c penwickctl -n "__fish_seen_subcommand_from export" -a all -d "The whole data folder"
complete -c penwickctl -n "__fish_seen_subcommand_from export" -l out -r -F -d "Write to a file"
complete -c penwickctl -n "__fish_seen_subcommand_from import" -F
complete -c penwickctl -n "__fish_seen_subcommand_from import" -l format -x -a "csv qif ofx xhb" -d "The file format"
complete -c penwickctl -n "__fish_seen_subcommand_from import" -l dry-run -d "Print what would be booked"
complete -c penwickctl -n "__fish_seen_subcommand_from import" -l category -x -d "SRC=DST: the file's category as ours"
