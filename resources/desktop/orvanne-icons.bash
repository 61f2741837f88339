# Completion of orvanne-icons for bash: the commands, each command's options and values, then
# file names (folders among them).
_orvanne_icons() {
    local cur=${COMP_WORDS[COMP_CWORD]}
    local prev=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    if [[ $COMP_CWORD -eq 1 ]]; then
        mapfile -t COMPREPLY < <(compgen -W \
            "info list extract to-ico to-bmp to-png thumbnail create --help --version" -- "$cur")
        return
    fi

    local command=${COMP_WORDS[1]} options
    case $command in
        info | list) options="" ;;
        extract) options="--index --png --keep-cursors" ;;
        to-ico) options="--index" ;;
        to-bmp) options="--size --background" ;;
        to-png) options="--index --size" ;;
        thumbnail) options="--size" ;;
        create) options="--png --bmp" ;;
        *) return ;;
    esac

    case $prev in
        --index | --background) return ;; # a number or a colour: nothing to offer
        --size)
            local sizes="16 24 32 48 64 128 256"
            [[ $command == to-bmp ]] && sizes="32 48"
            mapfile -t COMPREPLY < <(compgen -W "$sizes" -- "$cur")
            return
            ;;
    esac

    if [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options --" -- "$cur")
        return
    fi

    compopt -o filenames 2>/dev/null
    # extract, to-png and to-bmp take several inputs before their output: any word may be a
    # file or the folder, and file names include folders.
    mapfile -t COMPREPLY < <(compgen -f -- "$cur")
}
complete -F _orvanne_icons orvanne-icons
