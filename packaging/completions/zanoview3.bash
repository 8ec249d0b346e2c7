# Completion of the command line of zanoview3 for bash, with the bash-completion package.
_zanoview3() {
    # The options with their built-in values. A flag has none.
    local -A values=(
        [-h]=
        [-verbose]=
        [-debug]=
        [-wintype]=0
        [-winsize]=800x600
        [-resizetype]=1
        [-image_ratio_of_image]=1065353216
        [-image_ratio_of_window]=1063256064
        [-window_ratio_of_image]=1067030938
        [-resize_magnify]=
        [-resize_shrink]=
        [-sizelimit]=1
        [-maxmargin]=10x32
        [-maxsize]=1280x960
        [-cursor_movement]=1
        [-magsmooth]=
        [-move_limit]=
        [-doubleclick_interval]=300
        [-frametype]=1
        [-framewidth]=32
        [-framecolor]=255,255,255,255
        [-reproduce]=
        [-resetview]=
        [-menu]=
        [-single]=
    )
    local cur=${COMP_WORDS[COMP_CWORD]} option i
    COMPREPLY=()
    # The options come first. They end at the first word that is none.
    for ((i = 1; i < COMP_CWORD; i++)); do
        option=${COMP_WORDS[i],,}
        if [[ -n ${values[$option]-} ]]; then
            if ((++i == COMP_CWORD)); then
                COMPREPLY=($(compgen -W "${values[$option]}" -- "$cur"))
                return
            fi
        elif [[ -z ${values[${option%[+-]}]+is set} || -n ${values[${option%[+-]}]} ]]; then
            _zanoview3_files
            return
        fi
    done
    if [[ $cur != -* ]]; then
        _zanoview3_files
        return
    fi
    local offered=
    for option in "${!values[@]}"; do
        offered+=" $option"
        [[ -n ${values[$option]} ]] || offered+=" $option-"
    done
    COMPREPLY=($(compgen -W "$offered" -- "$cur"))
}

# Completes pictures and directories.
_zanoview3_files() {
    if declare -F _filedir >/dev/null; then
        _filedir '@(jpg|jpeg|png|bmp|tga)'
    else
        compopt -o default
    fi
}

complete -F _zanoview3 zanoview3
