#compdef ridelog-cli
# Completes the words of ridelog-cli in zsh.

_ridelog_cli_ports()
{
    local -a ports
    ports=(${(f)"$(_call_program ports ridelog-cli ports 2>/dev/null | grep -o '^/[^ ]*')"})
    compadd -a ports
}

_ridelog_cli()
{
    local -a commands common
    commands=(
        'inspect:Shows the general data and tours of a raw dump or a document, in its order'
        'import:Merges raw dumps into a document and saves it'
        'list:Lists the tours of a document or a raw dump, newest first'
        'show:Shows one tour with its values'
        'edit:Changes one tour of a document and saves'
        'stats:Shows totals and averages of all tours and of periods'
        'chart:Draws the chart of one tour into a picture'
        'export:Writes tours for other programs'
        'ports:Lists the serial ports of the machine'
        'receive:Waits for the device and takes one raw dump from it'
        'make-dump:Writes a plausible raw dump for trying things out'
        'simulate:Is a cycle computer on a port of its own, for trying things out'
        'check-update:Looks for a newer version of the application'
    )
    common=(
        '--miles[Shows miles, mph and feet]'
        '--now[Stands in for the current date, in local time]:time: '
        '--log[What of the log is written]:level:(none errors trace)'
        '--help[Shows this help]'
    )
    if ((CURRENT == 2)); then
        _describe command commands
        _arguments '--help[Shows the help of the program]' '--version[Shows the version]'
        return
    fi
    case $words[2] in
        inspect)
            _arguments -S $common \
                '1: :' \
                '--json[Prints JSON with every value]' \
                '--series[With --json the series of each tour as well]' \
                '--raw[With --json the sample records of each tour as well]' \
                '2:file:_files -g "*.(ridelog|odo)"'
            ;;
        import)
            _arguments -S $common \
                '1: :' \
                '--into[The document]:document:_files -g "*.ridelog"' \
                '--json[Prints JSON]' \
                '*:dump:_files -g "*.odo"'
            ;;
        list)
            _arguments -S $common \
                '1: :' \
                '--json[Prints JSON with every value]' \
                '--series[With --json the series of each tour as well]' \
                '--raw[With --json the sample records of each tour as well]' \
                '--removed[Lists removed tours among the others]' \
                '2:file:_files -g "*.(ridelog|odo)"'
            ;;
        show)
            _arguments -S $common \
                '1: :' \
                '--json[Prints JSON with every value]' \
                '--removed[TOUR is a number of list --removed]' \
                '2:file:_files -g "*.(ridelog|odo)"' '3:tour: '
            ;;
        edit)
            _arguments -S $common \
                '1: :' \
                '--title[Gives it this title, one line]:t: ' \
                '--description[Gives it this description, plain text]:d: ' \
                '--remove[Marks it as removed]' \
                '--restore[Takes that mark away]' \
                '--removed[TOUR is a number of list --removed]' \
                '2:document:_files -g "*.ridelog"' '3:tour: '
            ;;
        stats)
            _arguments -S $common \
                '1: :' \
                '--date[The day whose year, month and week are meant]:yyyy-mm-dd: ' \
                '--week-start[First day of a week]:day:(sunday monday)' \
                '--json[Prints JSON with every value]' \
                '2:file:_files -g "*.(ridelog|odo)"'
            ;;
        chart)
            _arguments -S $common \
                '1: :' \
                '(-o --output)'{-o,--output}'[The picture]:picture:_files -g "*.(jpg|jpeg|png|svg|pdf)"' \
                '--size[Width and height]:wxh: ' \
                '-x[What goes to the right]:name:(distance time)' \
                '-y[What is drawn, the first one with the left axis]:names:_values -s , series altitude speed pulse' \
                '--manual-range[Ends of the altitude axis in metres]:min,max: ' \
                '--layout-json[Prints where everything stands as JSON instead of drawing]' \
                '2:file:_files -g "*.(ridelog|odo)"' '3:tour: '
            ;;
        export)
            _arguments -S $common \
                '1: :' \
                '--format[Form of the files]:form:(tcx fit csv csv-summary json html)' \
                '(-o --output)'{-o,--output}'[The folder of the files]:dir:_files -/' \
                '--one-file[All tours in one file, named after FILE, where the form has it]' \
                '--force[Replaces files that are there already]' \
                '--removed[Removed tours as well]' \
                '--period[Only the tours of the year, month or week of a day]:period:(year month week)' \
                '--date[The day whose year, month and week are meant]:yyyy-mm-dd: ' \
                '--week-start[First day of a week]:day:(sunday monday)' \
                '2:file:_files -g "*.(ridelog|odo)"' '*:tour: '
            ;;
        ports)
            _arguments -S $common \
                '1: :' \
                '--json[Prints JSON]'
            ;;
        receive)
            _arguments -S $common \
                '1: :' \
                '--port[The serial port that the device is on (see the command ports)]:path:_ridelog_cli_ports' \
                '(-o --output)'{-o,--output}'[The file for the raw dump]:dump:_files -g "*.odo"' \
                '--into[Merges the dump into this document]:document:_files -g "*.ridelog"' \
                '--two-stop-bits[Sets the line to two stop bits]' \
                '--timeout[Gives up when nothing has arrived for so long]:seconds: '
            ;;
        make-dump)
            _arguments -S $common \
                '1: :' \
                '--tours[How many tours, 0 to 676]:n: ' \
                '--seed[Which rides]:s: ' \
                '--wrap[Lets the last tour go on at the front of the ring memory]' \
                '(-o --output)'{-o,--output}'[The file to write]:dump:_files -g "*.odo"'
            ;;
        simulate)
            _arguments -S $common \
                '1: :' \
                '--dump[What to send]:file:_files -g "*.odo"' \
                '--speed[Times as fast as the device, 0 as fast as it is read]:n: ' \
                '--link[A name for the port that stays the same, made as a symbolic link]:path:_files' \
                '--fault[What is wrong with it]:kind:(silence cut short long garbage noise trickle twice late)'
            ;;
        check-update)
            _arguments -S $common \
                '1: :' \
                '--url[Where the newest version is described (http, https or file)]:u: '
            ;;
    esac
}

_ridelog_cli "$@"
