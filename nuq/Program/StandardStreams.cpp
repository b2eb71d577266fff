#include "Program/StandardStreams.h"

#ifndef _WIN32
#include <fcntl.h>
#include <initializer_list>
#include <unistd.h>
#endif

namespace nuq {

void HoldStandardStreams()
{
#ifndef _WIN32
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // The lowest free number is taken, and those below are in use: it is this one. Open the wrong way round.
        if (::fcntl(stream, F_GETFD) < 0)
            ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
#endif
}

} // namespace nuq
