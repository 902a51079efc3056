# Completes the words of ridelog-cli in bash.

_ridelog_cli_options()
{
    local common="--miles --now --log --help"
    case $1 in
        inspect) echo "--json --series --raw $common" ;;
        import) echo "--into --json $common" ;;
        list) echo "--json --series --raw --removed $common" ;;
        show) echo "--json --removed $common" ;;
        edit) echo "--title --description --remove --restore --removed $common" ;;
        stats) echo "--date --week-start --json $common" ;;
        chart) echo "-o --output --size -x -y --manual-range --layout-json $common" ;;
        export) echo "--format -o --output --one-file --force --removed --period --date --week-start $common" ;;
        ports) echo "--json $common" ;;
        receive) echo "--port -o --output --into --two-stop-bits --timeout $common" ;;
        make-dump) echo "--tours --seed --wrap -o --output $common" ;;
        simulate) echo "--dump --speed --link --fault $common" ;;
        check-update) echo "--url $common" ;;
        *) echo "--help --version" ;;
    esac
}

_ridelog_cli_folders()
{
    local IFS=$'\n'
    compopt -o filenames 2>/dev/null
    COMPREPLY=($(compgen -d -- "$cur"))
}

# Files whose names end so, and the folders on the way.
_ridelog_cli_files()
{
    local IFS=$'\n'
    _ridelog_cli_folders
    COMPREPLY+=($(compgen -f -X "!*.@($1)" -- "$cur"))
}

_ridelog_cli_words()
{
    local IFS=$' \n'
    COMPREPLY=($(compgen -W "$1" -- "$cur"))
}

# The values of the option before the cursor; false if it takes none, or any text.
_ridelog_cli_value()
{
    case $2 in
        --log) _ridelog_cli_words "none errors trace" ;;
        --format) _ridelog_cli_words "tcx fit csv csv-summary json html" ;;
        --period) _ridelog_cli_words "year month week" ;;
        --week-start) _ridelog_cli_words "sunday monday" ;;
        --fault) _ridelog_cli_words "silence cut short long garbage noise trickle twice late" ;;
        -x | --x) _ridelog_cli_words "distance time" ;;
        -y | --y)
            # Several, with commas between.
            local taken=
            [[ $cur != *,* ]] || taken=${cur%,*},
            _ridelog_cli_words "${taken}altitude ${taken}speed ${taken}pulse"
            ;;
        --port) _ridelog_cli_words "$("$program" ports 2>/dev/null | grep -o '^/[^ ]*')" ;;
        --into) _ridelog_cli_files ridelog ;;
        --dump) _ridelog_cli_files odo ;;
        -o | --output)
            case $1 in
                chart) _ridelog_cli_files "jpg|jpeg|png|svg|pdf" ;;
                export) _ridelog_cli_folders ;;
                *) _ridelog_cli_files odo ;;
            esac
            ;;
        --title | --description | --now | --date | --size | --manual-range | --timeout | --tours | --seed | --speed | --link | \
            --url) ;;
        *) return 1 ;;
    esac
}

_ridelog_cli()
{
    local program=${COMP_WORDS[0]} command=${COMP_WORDS[1]} cur=${COMP_WORDS[COMP_CWORD]}
    local previous=${COMP_WORDS[COMP_CWORD - 1]}
    # Of --option=value the shell makes three words.
    if [[ $cur == = ]]; then
        cur=
    elif [[ $previous == = ]]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    # Words of files are matched by their endings, which needs these patterns.
    local extglob
    extglob=$(shopt -p extglob)
    shopt -s extglob
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        _ridelog_cli_words "inspect import list show edit stats chart export ports receive make-dump simulate check-update
            --help --version"
    elif _ridelog_cli_value "$command" "$previous"; then
        :
    elif [[ $cur == -* ]]; then
        _ridelog_cli_words "$(_ridelog_cli_options "$command")"
    else
        case $command in
            import) _ridelog_cli_files odo ;;
            edit) _ridelog_cli_files ridelog ;;
            inspect | list | show | stats | chart | export) _ridelog_cli_files "ridelog|odo" ;;
        esac
    fi
    $extglob
}

complete -F _ridelog_cli ridelog-cli
