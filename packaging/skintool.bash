# Completion of skintool(1) in bash.

_skintool_options() {
  local load='--script --reload --screen --dpi'
  case $1 in
    dump) echo "$load" ;;
    save) echo "--to --cover $load" ;;
    render) echo "--to --only $load" ;;
    sheet | preview | copy) echo "--to $load" ;;
    check) echo '--design --touch' ;;
    diff) echo "$load" ;;
    recolour) echo "--to --hue --saturation --lightness --replace --pictures $load" ;;
    new) echo '--look --size --accent --ground --text --font' ;;
    pack | unpack | buttons) echo '--to' ;;
  esac
}

_skintool_looks() {
  skintool new . --look list 2>/dev/null | sed 's/:.*//'
}

_skintool() {
  local word=$2 before=$3 command=${COMP_WORDS[1]}
  local IFS=$'\n'
  COMPREPLY=()
  if ((COMP_CWORD == 1)); then
    mapfile -t COMPREPLY < <(compgen -W $'dump\nsave\nrender\ncheck\nsheet\npreview\nbuttons\ndiff\ncopy\nrecolour\nnew\npack\nunpack\n--help\n--version' -- "$word")
    return
  fi
  case $before in
    --look)
      mapfile -t COMPREPLY < <(compgen -W "$(_skintool_looks)" -- "$word")
      return
      ;;
    --cover | --only | --touch | --screen | --dpi | --hue | --saturation | --lightness | --replace | --size | --accent | --ground | --text | --font)
      return
      ;;
  esac
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$(_skintool_options "$command" | tr ' ' '\n')"$'\n--help' -- "$word")
    return
  fi
  # A Skin is a folder, an archive or a script a file.
  compopt -o filenames
  mapfile -t COMPREPLY < <(compgen -f -- "$word")
}

complete -F _skintool skintool
