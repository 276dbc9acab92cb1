# bash completion for opxml: the tool itself knows what may stand at the cursor.
_opxml()
{
    mapfile -t COMPREPLY < <("$1" __complete bash "${COMP_LINE:0:COMP_POINT}" 2> /dev/null)
    case ${COMPREPLY[0]-} in
        :files) COMPREPLY=() && compopt -o default ;;
        :folders) COMPREPLY=() && compopt -o dirnames ;;
    esac
}
complete -F _opxml opxml
