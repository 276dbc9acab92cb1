// How help looks: as CLI11 prints it, but broken at words to the width of the terminal.
#ifndef OPERATIONXML_TOOLS_OPXML_COMMANDS_HELPFORMAT_H
#define OPERATIONXML_TOOLS_OPXML_COMMANDS_HELPFORMAT_H

#include <CLI/CLI.hpp>

#include <string>

class CHelpFormat : public CLI::Formatter
{
public:
    std::string make_option(const CLI::Option* pOption, bool bPositional) const override;
    std::string make_subcommand(const CLI::App* pCommand) const override;
    std::string make_description(const CLI::App* pCommand) const override;
    std::string make_usage(const CLI::App* pCommand, std::string strName) const override;
    std::string make_footer(const CLI::App* pCommand) const override;

private:
    std::string line(const std::string& strName, const std::string& strDescription) const;
};

#endif
