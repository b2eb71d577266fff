#include "Requests/HttpChannel.h"

#include "Auth/RequestAuthorization.h"

#include <QRandomGenerator>

namespace componentlibrary {
namespace {

ChannelSettings WithDefaults(ChannelSettings settings)
{
    if (!settings.authorize)
        settings.authorize = &tarnnuq::SetEnvironmentAwareAuthorization;
    if (!settings.dice)
        settings.dice = [] { return QRandomGenerator::global()->generateDouble(); };
    return settings;
}

} // namespace

HttpChannel::HttpChannel(ChannelSettings settings, QObject* parent)
    : QObject(parent), m_settings(WithDefaults(std::move(settings))), m_queue(kSlotsPerHost)
{
}

HttpChannel::~HttpChannel()
{
    emit Closing();
}

void HttpChannel::SetSettings(ChannelSettings settings)
{
    m_settings = WithDefaults(std::move(settings));
}

} // namespace componentlibrary
