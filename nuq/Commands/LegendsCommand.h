#pragma once

#include "CommandLine/Command.h"
#include "Records/ILegend.h"

#include <QString>

#include <memory>
#include <vector>

namespace nuq {

/** Lists the legends of a category, from the library on this machine or from the cloud. */
class LegendsCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString code;
        QString view;
        bool cloud = false;
    };
    using Legends = std::vector<std::shared_ptr<tarnnuq::ILegend>>;

    std::vector<tarnnuq::ILegend::LegendType> Views() const;
    ExitCode RunLocally(Session& session);
    ExitCode RunInCloud(Session& session);
    ExitCode Show(Session& session, const Legends& legends) const;

    Options m_options;
};

} // namespace nuq
