# fish completion for opxml: the tool itself knows what may stand at the cursor.
# fish compares with the word at the cursor by itself, quotes and all; the tool is
# told its beginning only where it tells options from arguments.
function __opxml_complete
    set -l word (commandline -ct)
    string match -q -- '-*' $word; or set word ''
    set -l lines (opxml __complete fish (commandline -opc)[2..] $word 2>/dev/null)
    switch "$lines[1]"
        case ':files'
            __fish_complete_path (commandline -ct)
        case ':folders'
            __fish_complete_directories (commandline -ct)
        case '*'
            printf '%s\n' $lines
    end
end
complete -c opxml -f -a '(__opxml_complete)'
