// The one table of rules: what "opxml lint --rules", --explain, docs/lint.md and the
// SARIF output say about each of them. A rule's examples stand in tests/lint/ID.
#include "lint/Lint.h"

#include <algorithm>

namespace lint
{
namespace
{
constexpr EnSeverity NOTE    = EnSeverity::Note;
constexpr EnSeverity WARNING = EnSeverity::Warning;
constexpr EnSeverity ERROR   = EnSeverity::Error;
} // namespace

const std::vector<StRule>& rules()
{
    // clang-format off
    static const std::vector<StRule> s_lstRule = {
        // ---- reading: the file as a whole ----
        {"not-well-formed", "reading", ERROR, "The file is no well-formed XML",
         "The server takes nothing from such a file: the device type, module or table is not there at all."},
        {"bad-encoding", "reading", ERROR, "A byte or the declared encoding does not fit",
         "The server takes nothing from a file whose bytes it cannot turn into characters."},
        {"limit-passed", "reading", ERROR, "A limit on size, nesting or entities is passed",
         "The limits keep a broken file from stopping the server; a file beyond them is refused whole."},
        {"file-missing", "reading", ERROR, "A file that is named is not there, or cannot be read",
         "The device type is then served by the file of its telnet twin, or not at all."},
        {"file-unused", "reading", WARNING, "No device type uses the file",
         "A file under a name that nobody asks for changes nothing, however right its content is."},

        // ---- names: elements and attributes ----
        {"unknown-element", "names", WARNING, "Nothing reads the element",
         "What stands in an element that nothing reads does not exist for the server."},
        {"unknown-attribute", "names", WARNING, "Nothing reads the attribute",
         "The value has no effect; the server goes on with the default of the attribute that was meant."},
        {"misplaced-element", "names", WARNING, "The element is read elsewhere, but not here",
         "An element counts only below the element whose reader asks for it."},
        {"stray-text", "names", WARNING, "Text stands where none is read",
         "All values stand in attributes; a text between elements is often a lost bracket or a value in the wrong place."},
        {"wrong-root", "names", WARNING, "The file does not hold what its place promises",
         "A file of another kind under this name gives an empty configuration without a word."},
        {"foreign-section", "names", WARNING, "The section belongs in a file of another kind",
         "Each kind of file has its own readers; a section of another kind is passed over."},

        // ---- values: what stands in attributes ----
        {"unknown-word", "values", ERROR, "The word is none of those that are known",
         "An unknown word reads as the default of its attribute, which is another word than the one written."},
        {"number-tail", "values", ERROR, "Something follows the digits of a number",
         "Reading stops at the first character that is no digit, so only a part of what is written counts."},
        {"number-missing", "values", ERROR, "A number or flag has no digits",
         "A text without digits reads as 0: \"true\" and \"yes\" are false."},
        {"number-range", "values", ERROR, "The number does not fit into 32 bits",
         "Only the low 32 bits are kept, which is another number."},
        {"missing-id", "values", ERROR, "The entry has no id",
         "Questions ask by id: an entry without one is never found."},
        {"missing-attribute", "values", WARNING, "An attribute is missing without which the entry is useless",
         "A missing attribute reads as empty text or 0, which no client asks for."},
        {"outer-blank", "values", WARNING, "A blank stands at the start or the end of the value",
         "Texts compare to the letter: with a blank more it is another text."},

        // ---- sense: what the configuration says as a whole ----
        {"shadowed-definition", "sense", WARNING, "The id is defined a second time",
         "Questions are answered from the first definition, so the second one is never reached; clients show both."},
        {"duplicate-option", "sense", WARNING, "Two options of a parameter share a number or an id",
         "Numbers and names are translated by the first option that fits; the other one is never answered."},
        {"nested-operation", "sense", WARNING, "An operation stands inside another one",
         "It is read as an operation of its own, and its parameters belong to both."},
        {"dangling-reference", "sense", ERROR, "An entry refers to an operation that is not there",
         "The client offers an entry behind which there is nothing."},
        {"wrong-kind", "sense", ERROR, "An entry refers to an operation of another kind",
         "The client looks the operation up among those of the kind that is written, and finds none."},
        {"depends-on-nothing", "sense", ERROR, "A step depends on a step that is not there",
         "A step waits for the one that it depends on; there is none of that id in its task."},
        {"unknown-task-type", "sense", ERROR, "The task type is none of those that are known",
         "The task configuration leaves such a task type out; a check file keeps its checks under no task type."},
        {"duplicate-task-type", "sense", WARNING, "A task type stands there twice",
         "Both are kept, and clients show one of them."},
        {"hidden-program-file", "sense", NOTE, "The program-file option is dropped on this server",
         "The option is offered only while the resource BACKUP_PROGRAM_SUPPORT is 1."},

        // ---- modules ----
        {"unregistered-type", "modules", WARNING, "The module names a device type that is not registered",
         "A module is merged into the types whose names equal one of its own to the letter."},
        {"module-name-taken", "modules", ERROR, "Another file has taken the name of the module",
         "The first file of a name is kept; the second one is refused whole."},
        {"module-shadowed", "modules", NOTE, "The type defines itself what the module adds",
         "A module's entries are appended, so the definition of the type itself answers every question."},
        {"module-names-type-twice", "modules", WARNING, "The module names a device type more than once",
         "Each naming appends everything that the module holds once more."},

        // ---- capacity ----
        {"capacity-unknown-sysoid", "capacity", NOTE, "No device type has the sysoid of the entry",
         "An entry is chosen by the sysoid of the device type, compared to the letter."},
        {"capacity-no-entry", "capacity", ERROR, "The document has no entry for the sysoid of the type",
         "Without an entry nothing is narrowed: every operation of the common file is offered."},
        {"capacity-unknown-id", "capacity", ERROR, "The entry names what the configuration does not have",
         "What the configuration does not have cannot be taken from it, so the line has no effect."},
        {"capacity-no-record", "capacity", WARNING, "A version in service has no capacity record",
         "Such a version has no configuration at all, and the server raises an event for each of its devices."},

        // ---- tables: alarms and file-check rules ----
        {"record-without-effect", "tables", ERROR, "The record counts for nothing",
         "A record without its id, or with an id that is no number, explains and registers nothing."},
        {"bad-fault-id", "tables", ERROR, "An alarm id, fault id or device type is no plain number",
         "Reading stops at the first character that is no digit: another id than the one written counts, or none."},
        {"duplicate-record", "tables", WARNING, "A record, type or parameter is there already",
         "The first record of an id or type is kept, and the last parameter of a record; what the other one says is dropped."},
        {"unknown-parameter", "tables", ERROR, "The name of the parameter is none of those that are known",
         "A parameter under another name is passed over."},
        {"bad-rule-value", "tables", ERROR, "The value of a file-check rule cannot be right",
         "An empty value makes the whole file invalid; a limit that is no positive number checks nothing."},

        // ---- inventory ----
        {"points-nowhere", "inventory", ERROR, "The row names what is not there",
         "A row counts only for a device type, version or file that exists under exactly this name."},
        {"unasked-name", "inventory", WARNING, "No question asks for the name",
         "Settings, items, resources and environment values are asked for by exact names; another name is never read."},
        {"bad-inventory-value", "inventory", ERROR, "The value is none of those that mean something",
         "A value outside its words reads as something else than was meant."},

        // ---- allowances ----
        {"unused-allowance", "allowances", WARNING, "The allowance allows nothing",
         "An allowance that nothing needs hides the next mistake."},
        {"bad-allowance", "allowances", ERROR, "The allowance is not understood",
         "An allowance names one rule and gives its reason: opxml-lint: allow RULE because TEXT."},
    };
    // clang-format on
    return s_lstRule;
}

const StRule* findRule(const std::string& strId)
{
    const auto& lstRule = rules();
    const auto  itRule =
        std::find_if(lstRule.begin(), lstRule.end(), [&strId](const StRule& stRule) { return stRule.pszId == strId; });
    return itRule == lstRule.end() ? nullptr : &*itRule;
}
} // namespace lint
