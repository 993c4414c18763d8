# fish completion for trxctl. What there is to choose from is asked of trxctl itself.

function __trxctl_candidates
    set -l words (commandline -opc)
    trxctl complete $words[2..] (commandline -ct) 2>/dev/null
end

complete -c trxctl -f -k -a '(__trxctl_candidates)'
