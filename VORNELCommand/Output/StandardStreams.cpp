#include "StandardStreams.h"

#include "CommandFailure.h"

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vornel::StandardStreams {

void replaceClosed()
{
    // A new descriptor has the lowest free number, which here is that of the closed stream.
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) < 0)
            ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

void requireOutput()
{
    if ((::fcntl(STDOUT_FILENO, F_GETFL) & O_ACCMODE) == O_RDONLY)
        throw CommandFailure(u"closedOutput"_s, u"La sortie standard est fermée."_s);
}

} // namespace vornel::StandardStreams
