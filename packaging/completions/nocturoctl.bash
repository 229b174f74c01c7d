# shellcheck shell=bash
# bash completion for nocturoctl

_nocturoctl_displays() {
  nocturoctl screens 2>/dev/null | sed -n 's/^ *\[[x ]\] *\([0-9]*\) *\([^ ]*\).*/\1 \2/p'
}

_nocturoctl_looks() {
  nocturoctl look list --json 2>/dev/null | grep -o '"name":"[^"]*"' | cut -d '"' -f 4
}

_nocturoctl() {
  local cur prev words cword
  _init_completion -n : || return
  local verbs='on off toggle pause rules schedule status effects dim temperature tint look get set step reset screens hotkey watch restore quit
    open save preferences about preview'
  local effects='invert overexposure dim color-filter hdtv-luminance'
  local switches='ActivateAtLaunch ActivateOnClick ContinuouslyApply NDDeactivateForScreenSaver
    UseHotKey UseSchedule UseRules EffectActive ZQFluxWarned'
  local settings="$switches Schedule SchedulePlace Rules DisplayLooks NDGroupEffect ShowStatusItem HotKeyCode HotKeyModifiers
    AffectedScreenSet AffectedScreens NDDimEffectLevel NDColorFilterEffectHue
    NDColorFilterEffectVividness FadeSeconds ScheduleFadeMinutes"
  local choices='' looks=''
  if ((cword == 1)); then
    choices="$verbs help --help --version"
  else
    case ${words[1]}:$cword in
      pause:2) choices='30m 1h until while cancel' ;;
      pause:3) [[ $prev != until ]] || choices='tomorrow sunrise sunset next' ;;
      rules:2) choices='list add move remove on off' ;;
      rules:3) case $prev in list) choices='--json' ;; add) choices='fullscreen program game' ;; esac ;;
      rules:4 | rules:5) [[ $cword:${words[3]} != @(4:fullscreen|4:game|5:program) ]] || { choices=off looks=yes; } ;;
      schedule:2) choices='list add remove on off next' ;;
      schedule:3) case $prev in list | next) choices='--json' ;; add) choices='dawn sunrise sunset dusk' ;; esac ;;
      schedule:4) [[ ${words[2]} != add ]] || { choices=off looks=yes; } ;;
      status:2) choices='--all --json --bar --bar=polybar --bar=i3status-rust' ;;
      status:*) choices='--follow' ;;
      effects:2) choices='add remove toggle only none' ;;
      effects:*) choices=$effects ;;
      look:2) choices='next previous back list save delete rename move' looks=yes ;;
      look:3) case $prev in list) choices='--json' ;; delete | rename | move) looks=yes ;; esac ;;
      help:2) choices=$verbs ;;
      get:2 | set:2 | step:2 | reset:2) choices=$settings ;;
      set:3) [[ " $switches " != *[[:space:]]"$prev"[[:space:]]* ]] || choices='true false' ;;
      screens:2) choices='all only add remove toggle look' ;;
      screens:4) if [[ ${words[2]} == look ]]; then choices=- looks=yes; else choices=$(_nocturoctl_displays); fi ;;
      screens:*) [[ ${words[2]} == all ]] || choices=$(_nocturoctl_displays) ;;
      hotkey:2) choices='set none enable disable' ;;
      open:2 | save:2)
        _filedir nocturo
        return
        ;;
      preview:*)
        case $prev in
          --png)
            _filedir png
            return
            ;;
          --display) choices=$(_nocturoctl_displays) ;;
          *) choices='--png --display' ;;
        esac
        ;;
    esac
    if [[ -n $looks ]]; then
      local IFS=$'\n' look
      mapfile -t COMPREPLY < <(compgen -W "${choices// /$IFS}$IFS$(_nocturoctl_looks)" -- "$cur")
      for look in "${!COMPREPLY[@]}"; do
        COMPREPLY[look]=$(printf '%q' "${COMPREPLY[look]}")
      done
      return
    fi
    if [[ $cur == -* && ' on toggle effects dim temperature tint look set step reset screens open ' == *" ${words[1]} "* ]]; then
      choices='--keep --help'
    fi
    [[ $cur != -* || -n $choices ]] || choices='--help'
    [[ $cur != -* || ' on off toggle look ' != *" ${words[1]} "* ]] || choices+=' --fade'
  fi
  mapfile -t COMPREPLY < <(compgen -W "$choices" -- "$cur")
}

complete -F _nocturoctl nocturoctl
