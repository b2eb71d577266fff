#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace nuq {

/** Puts the pictures of many families on one sheet. */
class FamilySheetCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    void Check() const override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString path;
        QString output;
        QString content = QStringLiteral("pictures");
        QString files;
        int columns = 0; ///< 0: as many as suit the content
        int size = 128;
        bool isDark = false;
    };

    bool WantsDrawings() const { return m_options.content == QLatin1String("drawings"); }

    Options m_options;
};

} // namespace nuq
