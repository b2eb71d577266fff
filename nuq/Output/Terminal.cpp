#include "Output/Terminal.h"

#include <QByteArray>
#include <QtGlobal>

#ifdef _WIN32
#include <io.h>
#else
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace nuq {

bool IsTerminal(Stream stream)
{
#ifdef _WIN32
    return _isatty(static_cast<int>(stream)) != 0;
#else
    return ::isatty(static_cast<int>(stream)) == 1;
#endif
}

int TerminalWidth(Stream stream)
{
#ifdef _WIN32
    Q_UNUSED(stream)
    return 0;
#else
    winsize size{};
    return ::ioctl(static_cast<int>(stream), TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
#endif
}

bool EnvironmentRefusesColour()
{
    return !qgetenv("NO_COLOR").isEmpty() || qgetenv("TERM") == "dumb";
}

} // namespace nuq
