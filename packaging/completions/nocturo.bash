# shellcheck shell=bash
# bash completion for nocturo

_nocturo() {
  # shellcheck disable=SC2034 # _init_completion wants them all
  local cur prev words cword split
  _init_completion -s -n : || return
  case $prev in
    --display-services)
      mapfile -t COMPREPLY < <(compgen -W 'auto randr wlr gnome kde simulated' -- "$cur")
      return
      ;;
  esac
  # shellcheck disable=SC2154 # set by _init_completion
  $split && return
  if [[ $cur == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W '--off --at-login --display-services= --help --version' -- "$cur")
    [[ ${COMPREPLY[0]-} != *= ]] || compopt -o nospace
    return
  fi
  _filedir nocturo
}

complete -F _nocturo nocturo
