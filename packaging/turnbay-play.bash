# Completion of turnbay-play for bash. What there is to complete stands in its --help.
_turnbay_play() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local help value
  help=$("${COMP_WORDS[0]}" --help 2> /dev/null) || return
  value=$(sed -nE "s/^  $previous ([A-Z][A-Za-z.]*) .*/\1/p" <<< "$help")
  COMPREPLY=()
  case $value in
    DIR) mapfile -t COMPREPLY < <(compgen -d -- "$current") ;;
    # What a file is called is its user's business: readline offers all of them.
    FILE.* | REFERENCE) ;;
    '')
      [[ $current == -* ]] || return 0
      mapfile -t COMPREPLY < <(
        compgen -W "$(sed -nE 's/^  (--[a-z-]+) .*/\1/p' <<< "$help")" -- "$current")
      ;;
    # A size or a number.
    *) compopt +o default 2> /dev/null ;;
  esac
}
complete -o default -o filenames -F _turnbay_play turnbay-play
