// See QuestionsAbout.h.
#include "tools/opxml/query/QuestionsAbout.h"

#include "database/ContentQuestions.h"
#include "records/WordTables.h"
#include "tools/opxml/query/QueryOperations.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace
{
class CAsker
{
public:
    explicit CAsker(const StExplanation& stExplanation)
        : m_stExplanation(stExplanation), m_stSubject(stExplanation.stSubject), m_lstId(stExplanation.stWanted.lstId)
    {
    }

    std::vector<StQuestionAnswer> ask()
    {
        switch (m_lstId.size())
        {
        case 0:
            break;
        case 1:
            askOperation();
            break;
        case 2:
            askType("isDeviceOpParaSupported", m_lstId);
            askType("isOtherOpSupported", m_lstId);
            break;
        default:
            askOption();
        }
        return std::move(m_lstAnswer);
    }

private:
    void askOperation()
    {
        askType("isDeviceOpSupported", m_lstId);
        askType("isOtherOpSupported", m_lstId);
        if (!m_stSubject.oDevice)
            return;
        askDevice("isCancelOperSupported", m_lstId);
        if (std::any_of(std::begin(TASK_TYPE_WORDS), std::end(TASK_TYPE_WORDS),
                        [this](const StTaskTypeWord& stWord) { return stWord.strWord == m_lstId[0]; }))
            askDevice("isSupportTaskType", m_lstId);
    }

    template <typename Operation>
    bool isAbout(const StContentQuestion<Operation>& stQuestion) const
    {
        return m_lstId[0] == stQuestion.strOperation && m_lstId[1] == stQuestion.strParameter;
    }

    // Those that look at this parameter, by the number of the option.
    void askOption()
    {
        const std::string strValue = valueOfOption();
        if (isAbout(BACKUP_CONTENT) && m_stSubject.oDevice)
        {
            askDevice("getContentTypeId", {strValue});
            askDevice("getBackupContentTypeId", {strValue});
        }
        if (isAbout(LOAD_DATA_CONTENT) && m_stSubject.oDevice)
            askDevice("getLoadDataContentTypeID", {strValue});
        if (isAbout(SAM_CONTENT))
        {
            askType("getSAMContentTypeID", {strValue});
            askType("getSAMContentTypeValue", {m_lstId[2]});
        }
        if (isAbout(BOARD_TYPE) && m_stSubject.oDevice)
        {
            const StDeviceInfo& stInfo = m_stSubject.oDevice->stInfo;
            askRow("getBoardType",
                   {std::to_string(stInfo.ulDeviceTypeID), std::to_string(stInfo.ulDeviceTypeVersionID), strValue});
        }
    }

    // Of the entry that it stands for; else what was typed, if that is a number.
    std::string valueOfOption() const
    {
        for (const StStand& stStand : m_stExplanation.lstStand)
        {
            const catalog::StField* pValue = stStand.entry().field("ulValue");
            if (stStand.bInEffect && pValue != nullptr)
                return pValue->strValue;
        }
        return m_lstId[2];
    }

    void askType(const std::string& strOperation, const std::vector<std::string>& lstMore)
    {
        if (m_stSubject.strDevType.empty())
            return;
        std::vector<std::string> lstText = {m_stSubject.strDevType, m_stSubject.strDevTypeVer};
        lstText.insert(lstText.end(), lstMore.begin(), lstMore.end());
        askRow(strOperation, lstText);
    }

    void askDevice(const std::string& strOperation, const std::vector<std::string>& lstMore)
    {
        std::vector<std::string> lstText = {std::to_string(m_stSubject.oDevice->stInfo.ulDeviceID)};
        lstText.insert(lstText.end(), lstMore.begin(), lstMore.end());
        askRow(strOperation, lstText);
    }

    // An option that is no number cannot be asked for by its number.
    void askRow(const std::string& strOperation, const std::vector<std::string>& lstText)
    {
        QueryArguments lstArgument;
        for (const std::string& strText : lstText)
            lstArgument.push_back({strText});
        std::string strIgnored;
        if (const StQueryOperation* pOperation = findOperation(strOperation, lstArgument, strIgnored))
        {
            const StQueryAnswer stAnswer = pOperation->pfnAsk(lstArgument);
            m_lstAnswer.push_back({strOperation, lstText, answerText(stAnswer), stAnswer.bFound,
                                   reasonOf(*pOperation, lstArgument, stAnswer).strWhy});
        }
    }

    const StExplanation&            m_stExplanation;
    const StSubject&                m_stSubject;
    const std::vector<std::string>& m_lstId;
    std::vector<StQuestionAnswer>   m_lstAnswer;
};
} // namespace

std::vector<StQuestionAnswer> askAbout(const StExplanation& stExplanation)
{
    return CAsker(stExplanation).ask();
}
