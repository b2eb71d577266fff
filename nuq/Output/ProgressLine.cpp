#include "Output/ProgressLine.h"

#include "Output/Terminal.h"
#include "Output/TextWidth.h"
#include "Output/VisibleText.h"

#include <algorithm>

namespace nuq {
namespace {

constexpr qint64 kFirstMoment = 400;
constexpr qint64 kBetweenDrawings = 100;

} // namespace

ProgressLine::ProgressLine(StandardError& error, bool isEnabled) : m_error(error), m_isEnabled(isEnabled)
{
    m_sinceStart.start();
}

ProgressLine::~ProgressLine()
{
    Clear();
}

void ProgressLine::Show(const QString& text)
{
    if (!m_isEnabled || m_sinceStart.elapsed() < kFirstMoment)
        return;
    if (m_isShown && m_sinceDrawn.elapsed() < kBetweenDrawings)
        return;
    const int width = std::max(10, TerminalWidth(Stream::Error) - 1);
    m_error.Raw("\r\033[K" + CutToWidth(VisibleText(text), width));
    m_isShown = true;
    m_sinceDrawn.start();
}

void ProgressLine::Clear()
{
    if (m_isShown)
        m_error.Raw("\r\033[K");
    m_isShown = false;
}

} // namespace nuq
