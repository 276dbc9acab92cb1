// See DiffRules.h.
#include "tools/opxml/diff/DiffRules.h"

#include <algorithm>
#include <stdexcept>

namespace
{
// clang-format off
const std::vector<StDiffRule> RULES = {
    {"type-lost", EnImpact::Breaking, "a device type is registered no longer", "its devices have no configuration any more"},
    {"type-gained", EnImpact::Compatible, "a device type is registered that was not", "its devices can be served"},
    {"cannot-be-read", EnImpact::Breaking, "a configuration, that of a version in service, or a module cannot be read any more", "every question about what it held is answered with an error or with no; what it held is not told as lost one by one"},
    {"can-be-read", EnImpact::Compatible, "a configuration, that of a version in service, or a module can be read that could not", "what it holds is there, and is not told as gained one by one"},
    {"version-lost", EnImpact::Breaking, "a version is in service no longer", "devices that run it have no configuration of their own"},
    {"version-gained", EnImpact::Compatible, "a version is in service that was not", "devices that run it have a configuration of their own"},

    {"operation-lost", EnImpact::Breaking, "an operation is there no longer", "isDeviceOpSupported and isOtherOpSupported answer no, isCancelOperSupported refuses, clients do not offer it"},
    {"operation-gained", EnImpact::Compatible, "an operation is there that was not", "clients may offer it"},
    {"parameter-lost", EnImpact::Breaking, "a parameter is there no longer", "isDeviceOpParaSupported and isOtherOpSupported answer no for it"},
    {"parameter-gained", EnImpact::Compatible, "a parameter is there that was not, and need not be given", "clients may offer it"},
    {"required-parameter-gained", EnImpact::Breaking, "a parameter is there that was not, and must be given", "a request as it was made before lacks it"},
    {"option-lost", EnImpact::Breaking, "an option is there no longer", "its number has no name any more, and cannot be chosen"},
    {"option-gained", EnImpact::Compatible, "an option is there that was not", "it can be chosen"},
    {"check-item-lost", EnImpact::Breaking, "a check item is there no longer", "it is not checked any more"},
    {"check-item-gained", EnImpact::Compatible, "a check item is there that was not", "it is checked as well"},
    {"step-lost", EnImpact::Breaking, "a task or an upgrade has a step no longer", "it is not taken any more, and what follows it runs without it"},
    {"step-gained", EnImpact::Compatible, "a task or an upgrade has a step that it had not", "it is taken as well"},
    {"feature-lost", EnImpact::Breaking, "a task type has a feature no longer", "clients do not offer it"},
    {"feature-gained", EnImpact::Compatible, "a task type has a feature that it had not", "clients may offer it"},
    {"offer-lost", EnImpact::Breaking, "a menu, a tab or a patch state offers an operation no longer", "it cannot be started there any more"},
    {"offer-gained", EnImpact::Compatible, "a menu, a tab or a patch state offers an operation that it did not", "it can be started there"},
    {"patch-state-lost", EnImpact::Breaking, "a patch type or a patch state is there no longer", "nothing is offered for patches of it"},
    {"patch-state-gained", EnImpact::Compatible, "a patch type or a patch state is there that was not", "what it names is offered for patches of it"},
    {"task-type-lost", EnImpact::Breaking, "a task type is there no longer", "isSupportTaskType answers no"},
    {"task-type-gained", EnImpact::Compatible, "a task type is there that was not", "isSupportTaskType answers yes"},
    {"twin-lost", EnImpact::Breaking, "one of several entries of an id is there no longer", "questions that look at all of them miss what only it held"},
    {"twin-gained", EnImpact::Compatible, "there is one more entry of an id", "questions that look at all of them find more"},
    {"unsupported-entry", EnImpact::Cosmetic, "something came or went that says it is not supported", "questions about it are answered with no, as before"},

    {"cancel-lost", EnImpact::Breaking, "an operation cannot be cancelled any more", "isCancelOperSupported answers no for tasks and checks; clients offer no cancelling"},
    {"cancel-gained", EnImpact::Compatible, "an operation can be cancelled", "isCancelOperSupported answers yes for tasks and checks; clients may offer cancelling"},
    {"level-narrowed", EnImpact::Breaking, "an operation is not for devices, or not for boards, any more", "it is not offered there"},
    {"level-widened", EnImpact::Compatible, "an operation is for devices and boards", "it is offered for both"},
    {"support-lost", EnImpact::Breaking, "something is supported no longer", "isOtherOpSupported answers no; clients do not offer it"},
    {"support-gained", EnImpact::Compatible, "something is supported that was not", "isOtherOpSupported answers yes; clients may offer it"},
    {"parameter-required", EnImpact::Breaking, "a parameter must be given that could be left out", "a request as it was made before lacks it"},
    {"parameter-optional", EnImpact::Compatible, "a parameter may be left out that had to be given", "a request as it was made before is good"},
    {"value-changed", EnImpact::Breaking, "the value of a parameter changed", "devices are sent another one"},
    {"number-changed", EnImpact::Breaking, "the number of an option changed", "devices are sent another one, and the old number has no name or another"},
    {"number-reread", EnImpact::Breaking, "the name that answers for a number changed", "of several options with one number another is the first"},
    {"target-changed", EnImpact::Breaking, "the place of an option on the device changed", "devices are sent another one"},
    {"command-changed", EnImpact::Breaking, "the command of a check item changed", "devices are sent another one"},
    {"kind-changed", EnImpact::Breaking, "an entry names an operation of another kind", "another operation is started, or none"},
    {"task-of-check-changed", EnImpact::Breaking, "a check operation is for another task type", "the tasks of the one go unchecked"},
    {"comparison-changed", EnImpact::Compatible, "the results of a check are compared in another way", "the same check may come to another verdict"},
    {"selection-changed", EnImpact::Compatible, "something else is selected at first", "who leaves the choice as it is gets another one"},
    {"step-changed", EnImpact::Compatible, "a step of a task waits for another one, or pauses at another place", "the task runs as well, but not in the same way"},
    {"availability-changed", EnImpact::Compatible, "a custom operation is offered in another place", "people find it elsewhere"},
    {"resource-changed", EnImpact::Compatible, "a custom operation has another resource file", "another form is shown"},
    {"text-changed", EnImpact::Cosmetic, "a text for people changed", "people read something else"},
    {"look-changed", EnImpact::Cosmetic, "a shortcut key or the template of a wizard changed", "it is reached by another key, or looks different"},
    {"field-changed", EnImpact::Compatible, "something else changed", "no rule knows more about it"},

    {"steps-moved", EnImpact::Compatible, "the steps of a task or an upgrade come in another order", "they are taken in it"},
    {"options-moved", EnImpact::Compatible, "the content types of a backup come in another order", "getAllBackupContentTypeNameByDevTypeName lists them in it"},
    {"check-items-moved", EnImpact::Cosmetic, "check items come in another order", "results are listed in it"},
    {"shadowed-entry", EnImpact::Cosmetic, "something came, went or changed that an earlier entry of its id hides", "no question reaches it"},
};
// clang-format on
} // namespace

const std::vector<StDiffRule>& diffRules()
{
    return RULES;
}

const StDiffRule& diffRule(const std::string& strId)
{
    const auto itRule =
        std::find_if(RULES.begin(), RULES.end(), [&strId](const StDiffRule& stRule) { return strId == stRule.pszId; });
    if (itRule == RULES.end())
        throw std::logic_error("no rule " + strId);
    return *itRule;
}

const char* impactWord(EnImpact enImpact)
{
    switch (enImpact)
    {
    case EnImpact::Breaking:
        return "breaking";
    case EnImpact::Compatible:
        return "compatible";
    case EnImpact::Cosmetic:
        break;
    }
    return "cosmetic";
}
