# Completion of the command line of zanoview3 for fish.

# Prints the pictures and directories that begin with the current word.
function __zanoview3_files
    complete -C "__fish_command_without_completions $(commandline -ct)" |
        string match -ri '.*(?:/|\.(?:jpg|jpeg|png|bmp|tga))(?:\t.*)?$'
end

# The options come first.
function __zanoview3_no_file_yet
    for word in (commandline -opc)[2..]
        test -e $word && return 1
    end
    return 0
end

complete -c zanoview3 -f -a '(__zanoview3_files)'
complete -c zanoview3 -n __zanoview3_no_file_yet -o h -d 'print help and exit(if commend-line).'
complete -c zanoview3 -n __zanoview3_no_file_yet -o h- -d 'the same, switched off'
complete -c zanoview3 -n __zanoview3_no_file_yet -o verbose -d 'verbose print.'
complete -c zanoview3 -n __zanoview3_no_file_yet -o verbose- -d 'the same, switched off'
complete -c zanoview3 -n __zanoview3_no_file_yet -o debug -d 'debug print.'
complete -c zanoview3 -n __zanoview3_no_file_yet -o debug- -d 'the same, switched off'
complete -c zanoview3 -n __zanoview3_no_file_yet -o wintype -x -a '0' -d 'window type (0:window 1:maximize 2:fullscreen).'
complete -c zanoview3 -n __zanoview3_no_file_yet -o winsize -x -a '800x600' -d 'initial window size.'
complete -c zanoview3 -n __zanoview3_no_file_yet -o resizetype -x -a '1' -d 'policy of resize (0:don\'t care 1:image 2:window).'
complete -c zanoview3 -n __zanoview3_no_file_yet -o image_ratio_of_image -x -a '1065353216' -d 'image size factor of image.'
complete -c zanoview3 -n __zanoview3_no_file_yet -o image_ratio_of_window -x -a '1063256064' -d 'image size factor of window.'
complete -c zanoview3 -n __zanoview3_no_file_yet -o window_ratio_of_image -x -a '1067030938' -d 'window size factor of image.'
complete -c zanoview3 -n __zanoview3_no_file_yet -o resize_magnify -d 'allow window resize (if magnify).'
complete -c zanoview3 -n __zanoview3_no_file_yet -o resize_magnify- -d 'the same, switched off'
complete -c zanoview3 -n __zanoview3_no_file_yet -o resize_shrink -d 'allow window resize (if shrink).'
complete -c zanoview3 -n __zanoview3_no_file_yet -o resize_shrink- -d 'the same, switched off'
complete -c zanoview3 -n __zanoview3_no_file_yet -o sizelimit -x -a '1' -d 'limitation of window size (0:screen 1:value).'
complete -c zanoview3 -n __zanoview3_no_file_yet -o maxmargin -x -a '10x32' -d '0:screen, margin of maximum window size.'
complete -c zanoview3 -n __zanoview3_no_file_yet -o maxsize -x -a '1280x960' -d '1:value, maximum window size.'
complete -c zanoview3 -n __zanoview3_no_file_yet -o cursor_movement -x -a '1' -d 'moving cursorkey direction (0:panning, 1:camera).'
complete -c zanoview3 -n __zanoview3_no_file_yet -o magsmooth -d 'image smoother for magnify.'
complete -c zanoview3 -n __zanoview3_no_file_yet -o magsmooth- -d 'the same, switched off'
complete -c zanoview3 -n __zanoview3_no_file_yet -o move_limit -d 'image move limitation (not implemented yet).'
complete -c zanoview3 -n __zanoview3_no_file_yet -o move_limit- -d 'the same, switched off'
complete -c zanoview3 -n __zanoview3_no_file_yet -o doubleclick_interval -x -a '300' -d 'maximum interval time(ms) of mouse double-click.'
complete -c zanoview3 -n __zanoview3_no_file_yet -o frametype -x -a '1' -d 'drawing photo-frame type (0:none - 4:max).'
complete -c zanoview3 -n __zanoview3_no_file_yet -o framewidth -x -a '32' -d 'drawing photo-frame width (in pixel).'
complete -c zanoview3 -n __zanoview3_no_file_yet -o framecolor -x -a '255,255,255,255' -d 'frame color.'
complete -c zanoview3 -n __zanoview3_no_file_yet -o reproduce -d 'reproduce angle/zoom of saved \'.zvw\' file.'
complete -c zanoview3 -n __zanoview3_no_file_yet -o reproduce- -d 'the same, switched off'
complete -c zanoview3 -n __zanoview3_no_file_yet -o resetview -d 'resetview(reproduce) on nextimage.'
complete -c zanoview3 -n __zanoview3_no_file_yet -o resetview- -d 'the same, switched off'
complete -c zanoview3 -n __zanoview3_no_file_yet -o menu -d 'menu on/off.'
complete -c zanoview3 -n __zanoview3_no_file_yet -o menu- -d 'the same, switched off'
complete -c zanoview3 -n __zanoview3_no_file_yet -o single -d 'disable double-buffer, reduce VRAM use.'
complete -c zanoview3 -n __zanoview3_no_file_yet -o single- -d 'the same, switched off'
