# Completes the words of ridelog-cli in fish.

function __ridelog_cli_is
    set -l words (commandline -opc)
    test (count $words) -ge 2; and contains -- $words[2] $argv
end

function __ridelog_cli_files
    for ending in $argv
        __fish_complete_suffix .$ending
    end
end

function __ridelog_cli_ports
    ridelog-cli ports 2>/dev/null | string match -r '^/\S+'
end

set -l first "test (count (commandline -opc)) -eq 1"
complete -c ridelog-cli -f
complete -c ridelog-cli -n $first -l help -d "Shows the help of the program"
complete -c ridelog-cli -n $first -l version -d "Shows the version"

complete -c ridelog-cli -n $first -a inspect -d 'Shows the general data and tours of a raw dump or a document, in its order'
complete -c ridelog-cli -n $first -a import -d 'Merges raw dumps into a document and saves it'
complete -c ridelog-cli -n $first -a list -d 'Lists the tours of a document or a raw dump, newest first'
complete -c ridelog-cli -n $first -a show -d 'Shows one tour with its values'
complete -c ridelog-cli -n $first -a edit -d 'Changes one tour of a document and saves'
complete -c ridelog-cli -n $first -a stats -d 'Shows totals and averages of all tours and of periods'
complete -c ridelog-cli -n $first -a chart -d 'Draws the chart of one tour into a picture'
complete -c ridelog-cli -n $first -a export -d 'Writes tours for other programs'
complete -c ridelog-cli -n $first -a ports -d 'Lists the serial ports of the machine'
complete -c ridelog-cli -n $first -a receive -d 'Waits for the device and takes one raw dump from it'
complete -c ridelog-cli -n $first -a make-dump -d 'Writes a plausible raw dump for trying things out'
complete -c ridelog-cli -n $first -a simulate -d 'Is a cycle computer on a port of its own, for trying things out'
complete -c ridelog-cli -n $first -a check-update -d 'Looks for a newer version of the application'

complete -c ridelog-cli -n '__ridelog_cli_is inspect list show stats' -l json -d 'Prints JSON with every value'
complete -c ridelog-cli -n '__ridelog_cli_is inspect list' -l series -d 'With --json the series of each tour as well'
complete -c ridelog-cli -n '__ridelog_cli_is inspect list' -l raw -d 'With --json the sample records of each tour as well'
complete -c ridelog-cli -n '__ridelog_cli_is inspect import list show edit stats chart export ports receive make-dump simulate check-update' -l miles -d 'Shows miles, mph and feet'
complete -c ridelog-cli -n '__ridelog_cli_is inspect import list show edit stats chart export ports receive make-dump simulate check-update' -l now -x -d 'Stands in for the current date, in local time'
complete -c ridelog-cli -n '__ridelog_cli_is inspect import list show edit stats chart export ports receive make-dump simulate check-update' -l log -xa 'none errors trace' -d 'What of the log is written'
complete -c ridelog-cli -n '__ridelog_cli_is inspect import list show edit stats chart export ports receive make-dump simulate check-update' -l help -d 'Shows this help'
complete -c ridelog-cli -n '__ridelog_cli_is import' -l into -xa '(__ridelog_cli_files ridelog)' -d 'The document'
complete -c ridelog-cli -n '__ridelog_cli_is import ports' -l json -d 'Prints JSON'
complete -c ridelog-cli -n '__ridelog_cli_is list' -l removed -d 'Lists removed tours among the others'
complete -c ridelog-cli -n '__ridelog_cli_is show edit' -l removed -d 'TOUR is a number of list --removed'
complete -c ridelog-cli -n '__ridelog_cli_is edit' -l title -x -d 'Gives it this title, one line'
complete -c ridelog-cli -n '__ridelog_cli_is edit' -l description -x -d 'Gives it this description, plain text'
complete -c ridelog-cli -n '__ridelog_cli_is edit' -l remove -d 'Marks it as removed'
complete -c ridelog-cli -n '__ridelog_cli_is edit' -l restore -d 'Takes that mark away'
complete -c ridelog-cli -n '__ridelog_cli_is stats export' -l date -x -d 'The day whose year, month and week are meant'
complete -c ridelog-cli -n '__ridelog_cli_is stats export' -l week-start -xa 'sunday monday' -d 'First day of a week'
complete -c ridelog-cli -n '__ridelog_cli_is chart' -s o -l output -xa '(__ridelog_cli_files jpg jpeg png svg pdf)' -d 'The picture'
complete -c ridelog-cli -n '__ridelog_cli_is chart' -l size -x -d 'Width and height'
complete -c ridelog-cli -n '__ridelog_cli_is chart' -s x -xa 'distance time' -d 'What goes to the right'
complete -c ridelog-cli -n '__ridelog_cli_is chart' -s y -xa '(__fish_append , altitude speed pulse)' -d 'What is drawn, the first one with the left axis'
complete -c ridelog-cli -n '__ridelog_cli_is chart' -l manual-range -x -d 'Ends of the altitude axis in metres'
complete -c ridelog-cli -n '__ridelog_cli_is chart' -l layout-json -d 'Prints where everything stands as JSON instead of drawing'
complete -c ridelog-cli -n '__ridelog_cli_is export' -l format -xa 'tcx fit csv csv-summary json html' -d 'Form of the files'
complete -c ridelog-cli -n '__ridelog_cli_is export' -s o -l output -xa '(__fish_complete_directories)' -d 'The folder of the files'
complete -c ridelog-cli -n '__ridelog_cli_is export' -l one-file -d 'All tours in one file, named after FILE, where the form has it'
complete -c ridelog-cli -n '__ridelog_cli_is export' -l force -d 'Replaces files that are there already'
complete -c ridelog-cli -n '__ridelog_cli_is export' -l removed -d 'Removed tours as well'
complete -c ridelog-cli -n '__ridelog_cli_is export' -l period -xa 'year month week' -d 'Only the tours of the year, month or week of a day'
complete -c ridelog-cli -n '__ridelog_cli_is receive' -l port -xa '(__ridelog_cli_ports)' -d 'The serial port that the device is on (see the command ports)'
complete -c ridelog-cli -n '__ridelog_cli_is receive' -s o -l output -xa '(__ridelog_cli_files odo)' -d 'The file for the raw dump'
complete -c ridelog-cli -n '__ridelog_cli_is receive' -l into -xa '(__ridelog_cli_files ridelog)' -d 'Merges the dump into this document'
complete -c ridelog-cli -n '__ridelog_cli_is receive' -l two-stop-bits -d 'Sets the line to two stop bits'
complete -c ridelog-cli -n '__ridelog_cli_is receive' -l timeout -x -d 'Gives up when nothing has arrived for so long'
complete -c ridelog-cli -n '__ridelog_cli_is make-dump' -l tours -x -d 'How many tours, 0 to 676'
complete -c ridelog-cli -n '__ridelog_cli_is make-dump' -l seed -x -d 'Which rides'
complete -c ridelog-cli -n '__ridelog_cli_is make-dump' -l wrap -d 'Lets the last tour go on at the front of the ring memory'
complete -c ridelog-cli -n '__ridelog_cli_is make-dump' -s o -l output -xa '(__ridelog_cli_files odo)' -d 'The file to write'
complete -c ridelog-cli -n '__ridelog_cli_is simulate' -l dump -xa '(__ridelog_cli_files odo)' -d 'What to send'
complete -c ridelog-cli -n '__ridelog_cli_is simulate' -l speed -x -d 'Times as fast as the device, 0 as fast as it is read'
complete -c ridelog-cli -n '__ridelog_cli_is simulate' -l link -rF -d 'A name for the port that stays the same, made as a symbolic link'
complete -c ridelog-cli -n '__ridelog_cli_is simulate' -l fault -xa 'silence cut short long garbage noise trickle twice late' -d 'What is wrong with it'
complete -c ridelog-cli -n '__ridelog_cli_is check-update' -l url -x -d 'Where the newest version is described (http, https or file)'

complete -c ridelog-cli -n '__ridelog_cli_is import' -a '(__ridelog_cli_files odo)'
complete -c ridelog-cli -n '__ridelog_cli_is edit' -a '(__ridelog_cli_files ridelog)'
complete -c ridelog-cli -n '__ridelog_cli_is inspect list show stats chart export' -a '(__ridelog_cli_files ridelog odo)'
