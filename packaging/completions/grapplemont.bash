# Completion for grapplemont, grapplemont-console and grapplemont-world. What there is to complete is
# read from what the programs say about themselves, so that no option stands here a second time.

_grapplemont() {
  local program=${COMP_WORDS[0]} word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
  local asked=() said
  COMPREPLY=()
  case $before in
    --home | --pictures) mapfile -t COMPREPLY < <(compgen -d -- "$word") && compopt -o filenames && return ;;
    --stats) mapfile -t COMPREPLY < <(compgen -f -- "$word") && compopt -o filenames && return ;;
    --shows) mapfile -t COMPREPLY < <(compgen -W "auto cancel" -- "$word") && return ;;
  esac
  if [[ $program == *-world ]]; then
    if ((COMP_CWORD == 1)) && [[ $word != -* ]]; then
      said=$("$program" --help 2>/dev/null | sed -nE 's/^  ([a-z-]+).*/\1/p')
      mapfile -t COMPREPLY < <(compgen -W "$said help" -- "$word")
      return
    fi
    if ((COMP_CWORD > 1)); then asked=("${COMP_WORDS[1]}"); fi
  fi
  if [[ $word == -* ]]; then
    said=$("$program" "${asked[@]}" --help 2>/dev/null | grep -oE -- '--[a-z]+(-[a-z]+)*')
    mapfile -t COMPREPLY < <(compgen -W "$said --help --version" -- "$word" | sort -u)
  else
    compopt -o default
  fi
}
complete -F _grapplemont grapplemont grapplemont-console grapplemont-world
