complete -c nocturo -f
complete -c nocturo -l off -d 'Start with the effect off'
complete -c nocturo -l at-login -d 'Start with the session, without a question'
complete -c nocturo -l display-services -x -a 'auto\t"what this session offers" randr\t"an X server" wlr\t"a Wayland compositor like sway" gnome\t"GNOME or Cinnamon" kde\t"KDE Plasma 6" simulated\t"displays in memory"' -d 'Where the displays come from'
complete -c nocturo -l help -d 'Show a short text'
complete -c nocturo -l version -d 'Show the version'
complete -c nocturo -k -a '(__fish_complete_suffix .nocturo)'
