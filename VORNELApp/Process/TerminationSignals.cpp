#include "TerminationSignals.h"

#include <QSocketNotifier>

#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>

namespace vornel {

namespace {

constexpr std::array handledSignals{SIGTERM, SIGINT};

/// A handler may do very little: it writes to this descriptor, and the event loop does the rest.
volatile std::sig_atomic_t awakening = -1; // NOLINT: a handler knows nothing but what is global
volatile std::sig_atomic_t latest = 0;     // NOLINT

using Handler = void (*)(int);

Handler handlerOf(int signal)
{
    struct sigaction action = {};
    ::sigaction(signal, nullptr, &action);
    return action.sa_handler;
}

void handle(int signal, Handler handler)
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

void wakeEventLoop(int signal)
{
    const int error = errno;
    latest = signal;
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = ::write(awakening, &one, sizeof(one));
    errno = error;
}

void giveBack()
{
    for (const int signal : handledSignals) {
        if (handlerOf(signal) == wakeEventLoop)
            handle(signal, SIG_DFL);
    }
}

/// How many signals have come.
std::uint64_t count()
{
    std::uint64_t count = 0;
    return ::read(awakening, &count, sizeof(count)) == sizeof(count) ? count : 0;
}

} // namespace

TerminationSignals::TerminationSignals()
{
    awakening = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (awakening < 0)
        return; // the signals end the process as usual
    auto *notifier = new QSocketNotifier(awakening, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        Q_EMIT received();
        giveBack();
        if (count() > 1)
            ::raise(latest);
    });
    for (const int signal : handledSignals) {
        if (handlerOf(signal) != SIG_IGN)
            handle(signal, wakeEventLoop);
    }
}

TerminationSignals::~TerminationSignals()
{
    giveBack();
    if (awakening >= 0)
        ::close(awakening);
}

} // namespace vornel
