function __nocturoctl_displays
    nocturoctl screens 2>/dev/null | string replace -rf '^ *\[[x ]\] *([0-9]+) *(\S+).*' '$1\t$2'
end

function __nocturoctl_looks
    nocturoctl look list --json 2>/dev/null | string match -ar '"name":"[^"]*"' | string replace -r '"name":"(.*)"' '$1'
end

function __nocturoctl_at -d 'True where the given verb was written and so many words follow it'
    set -l words (commandline -opc)
    test (count $words) -eq (math 2 + $argv[2]); and test "$words[2]" = $argv[1]
end

function __nocturoctl_after -d 'True where the last two words are these'
    set -l words (commandline -opc)
    test "$words[-2] $words[-1]" = "$argv"
end

set -l effects invert overexposure dim color-filter hdtv-luminance
set -l switches ActivateAtLaunch ActivateOnClick ContinuouslyApply NDDeactivateForScreenSaver UseHotKey UseSchedule UseRules EffectActive ZQFluxWarned
set -l settings $switches Schedule SchedulePlace Rules DisplayLooks NDGroupEffect ShowStatusItem HotKeyCode HotKeyModifiers AffectedScreenSet AffectedScreens NDDimEffectLevel NDColorFilterEffectHue NDColorFilterEffectVividness FadeSeconds ScheduleFadeMinutes

complete -c nocturoctl -f
complete -c nocturoctl -l help -d 'Show help'
complete -c nocturoctl -n __fish_use_subcommand -l version -d 'Show the version'
complete -c nocturoctl -n __fish_use_subcommand -a on -d 'Switch the effect on'
complete -c nocturoctl -n __fish_use_subcommand -a off -d 'Switch the effect off'
complete -c nocturoctl -n __fish_use_subcommand -a toggle -d 'Switch the effect on or off'
complete -c nocturoctl -n __fish_use_subcommand -a pause -d 'Switch the effect off for a time'
complete -c nocturoctl -n __fish_use_subcommand -a rules -d 'Show or change what happens while programs are in front'
complete -c nocturoctl -n __fish_use_subcommand -a schedule -d 'Show or change what happens by the clock and the sun'
complete -c nocturoctl -n __fish_use_subcommand -a status -d 'Show the state of everything'
complete -c nocturoctl -n __fish_use_subcommand -a effects -d 'List or choose the effects'
complete -c nocturoctl -n __fish_use_subcommand -a dim -d 'Show the dim level, dim or lighten'
complete -c nocturoctl -n __fish_use_subcommand -a tint -d 'Show or choose hue and vividness of the color filter'
complete -c nocturoctl -n __fish_use_subcommand -a temperature -d 'Show or choose a color temperature'
complete -c nocturoctl -n __fish_use_subcommand -a look -d 'Show, choose or keep a combination of effects'
complete -c nocturoctl -n __fish_use_subcommand -a get -d 'Show a setting'
complete -c nocturoctl -n __fish_use_subcommand -a set -d 'Change a setting'
complete -c nocturoctl -n __fish_use_subcommand -a step -d 'Change a number by so much'
complete -c nocturoctl -n __fish_use_subcommand -a reset -d 'Give a setting its default value again'
complete -c nocturoctl -n __fish_use_subcommand -a screens -d 'List or choose the affected displays'
complete -c nocturoctl -n __fish_use_subcommand -a hotkey -d 'Show or choose the global hot key'
complete -c nocturoctl -n __fish_use_subcommand -a watch -d 'Print every change as it happens'
complete -c nocturoctl -n __fish_use_subcommand -a restore -d 'Give every display its own colors back'
complete -c nocturoctl -n __fish_use_subcommand -a quit -d 'Give the displays back and end Nocturo'
complete -c nocturoctl -n __fish_use_subcommand -a open -d 'Open the effect kept in a document'
complete -c nocturoctl -n __fish_use_subcommand -a save -d 'Keep the effect in a document'
complete -c nocturoctl -n __fish_use_subcommand -a preferences -d 'Show the preferences'
complete -c nocturoctl -n __fish_use_subcommand -a about -d 'Show the box about Nocturo'
complete -c nocturoctl -n __fish_use_subcommand -a preview -d 'Draw what a display shows into a picture'

complete -c nocturoctl -n '__fish_seen_subcommand_from on toggle effects dim temperature tint look set step reset screens open' -l keep -d 'Keep the colors even if hard to read'
complete -c nocturoctl -n '__fish_seen_subcommand_from on off toggle look' -l fade -x -a '0 0.5 2 5' -d 'Take so many seconds'
complete -c nocturoctl -n '__nocturoctl_at pause 0' -a '30m 1h until while cancel'
complete -c nocturoctl -n '__nocturoctl_after pause until' -a 'tomorrow sunrise sunset next'
complete -c nocturoctl -n '__nocturoctl_at rules 0' -a 'list add move remove on off'
complete -c nocturoctl -n '__nocturoctl_after rules add' -a 'fullscreen program game'
complete -c nocturoctl -n '__nocturoctl_at rules 2; and __fish_seen_subcommand_from fullscreen game' -a 'off (__nocturoctl_looks)'
complete -c nocturoctl -n '__nocturoctl_at rules 3; and __fish_seen_subcommand_from program' -a 'off (__nocturoctl_looks)'
complete -c nocturoctl -n '__nocturoctl_after rules list' -l json -d 'One list for programs'
complete -c nocturoctl -n '__nocturoctl_at schedule 0' -a 'list add remove on off next'
complete -c nocturoctl -n '__nocturoctl_after schedule add' -a 'dawn sunrise sunset dusk'
complete -c nocturoctl -n '__nocturoctl_at schedule 2; and __fish_seen_subcommand_from add' -a 'off (__nocturoctl_looks)'
complete -c nocturoctl -n '__nocturoctl_after schedule list' -l json -d 'One list for programs'
complete -c nocturoctl -n '__fish_seen_subcommand_from status' -l json -d 'One object for programs'
complete -c nocturoctl -n '__fish_seen_subcommand_from status' -l all -d 'Every setting as well'
complete -c nocturoctl -n '__fish_seen_subcommand_from status' -a '--bar --bar=polybar --bar=i3status-rust' -d 'A line for a bar'
complete -c nocturoctl -n '__fish_seen_subcommand_from status' -l follow -d 'Another line at each change'
complete -c nocturoctl -n '__nocturoctl_at effects 0' -a 'add remove toggle only none'
complete -c nocturoctl -n '__fish_seen_subcommand_from effects; and not __nocturoctl_at effects 0' -a "$effects"
complete -c nocturoctl -n '__nocturoctl_at look 0' -a 'next previous back list save delete rename move'
complete -c nocturoctl -n '__nocturoctl_at look 0' -a '(__nocturoctl_looks)'
for how in delete rename move
    complete -c nocturoctl -n "__nocturoctl_after look $how" -a '(__nocturoctl_looks)'
end
complete -c nocturoctl -n '__nocturoctl_after look list' -l json -d 'One list for programs'
for verb in get set step reset
    complete -c nocturoctl -n "__nocturoctl_at $verb 0" -a "$settings"
end
for setting in $switches
    complete -c nocturoctl -n "__nocturoctl_after set $setting" -a 'true false'
end
complete -c nocturoctl -n '__nocturoctl_at screens 0' -a 'all only add remove toggle look'
complete -c nocturoctl -n '__fish_seen_subcommand_from screens; and __fish_seen_subcommand_from only add remove toggle look' -a '(__nocturoctl_displays)'
complete -c nocturoctl -n '__nocturoctl_at screens 2; and __fish_seen_subcommand_from look' -a '- (__nocturoctl_looks)'
complete -c nocturoctl -n '__nocturoctl_at hotkey 0' -a 'set none enable disable'
complete -c nocturoctl -n '__nocturoctl_at open 0' -k -a '(__fish_complete_suffix .nocturo)'
complete -c nocturoctl -n '__nocturoctl_at save 0' -k -a '(__fish_complete_suffix .nocturo)'
complete -c nocturoctl -n '__fish_seen_subcommand_from preview' -l png -r -k -a '(__fish_complete_suffix .png)' -d 'The picture'
complete -c nocturoctl -n '__fish_seen_subcommand_from preview' -l display -x -a '(__nocturoctl_displays)' -d 'Which display'
