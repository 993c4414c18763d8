# shellcheck shell=bash
# bash completion for trxctl. What there is to choose from is asked of trxctl itself.

_trxctl() {
    local word quote='' candidate
    word=${COMP_WORDS[COMP_CWORD]}
    case $word in
        [\"\']*) quote=${word:0:1} ;;
    esac
    COMPREPLY=()
    while IFS=$'\t' read -r candidate _; do
        # Behind an opening quote bash adds the closing one; without it the blanks need a backslash each.
        if [ -z "$quote" ]; then
            printf -v candidate '%q' "$candidate"
        fi
        COMPREPLY+=("$candidate")
    done < <(trxctl complete "${COMP_WORDS[@]:1:COMP_CWORD-1}" "$word" 2>/dev/null)
}

# --model=NAME is one word for trxctl and three for bash; the form with a blank completes.
complete -o nosort -F _trxctl trxctl
