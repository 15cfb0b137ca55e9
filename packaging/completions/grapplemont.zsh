#compdef grapplemont grapplemont-console grapplemont-world
# What there is to complete is read from what the programs say about themselves, so that no option
# stands here a second time.

_grapplemont() {
  local program=$words[1] asked=()
  local -a said
  case $words[CURRENT-1] in
    --home | --pictures) _directories && return ;;
    --stats) _files && return ;;
    --shows) compadd auto cancel && return ;;
  esac
  if [[ $program == *-world ]]; then
    if (( CURRENT == 2 )) && [[ $words[2] != -* ]]; then
      said=(${(f)"$($program --help 2>/dev/null | sed -nE 's/^  ([a-z-]+).*/\1/p')"})
      compadd help $said
      return
    fi
    (( CURRENT > 2 )) && asked=($words[2])
  fi
  if [[ $words[CURRENT] == -* ]]; then
    said=(${(f)"$($program $asked --help 2>/dev/null | grep -oE -- '--[a-z]+(-[a-z]+)*')"})
    compadd -- ${(u)said} --help --version
  else
    _files
  fi
}
_grapplemont "$@"
