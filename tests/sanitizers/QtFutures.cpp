/// Qt isn't built for the thread sanitizer, which therefore doesn't see that what was done before a future's
/// end comes before what is done after waiting for it, nor that the last owner of a result comes after the
/// others. These functions take the place of Qt's, tell it, and call Qt's.

#include <QFuture>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

namespace {

/// Qt's own function of this name, as the linker knows it.
template <typename Function>
Function *original(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

/// At its end, also by an exception, tells the sanitizer that everything released by others came before.
struct Arrival
{
    explicit Arrival(void *future) : future(future) {}
    ~Arrival() { __tsan_acquire(future); }
    Arrival(const Arrival &) = delete;
    Arrival &operator=(const Arrival &) = delete;

    void *future;
};

} // namespace

void QFutureInterfaceBase::reportFinished()
{
    static const auto report =
        original<void(QFutureInterfaceBase *)>("_ZN20QFutureInterfaceBase14reportFinishedEv");
    __tsan_release(&mutex());
    report(this);
}

void QFutureInterfaceBase::waitForFinished()
{
    static const auto wait =
        original<void(QFutureInterfaceBase *)>("_ZN20QFutureInterfaceBase15waitForFinishedEv");
    const Arrival end(&mutex());
    wait(this);
}

void QFutureInterfaceBase::waitForResult(int index)
{
    static const auto wait =
        original<void(QFutureInterfaceBase *, int)>("_ZN20QFutureInterfaceBase13waitForResultEi");
    const Arrival end(&mutex());
    wait(this, index);
}

bool QFutureInterfaceBase::derefT() const noexcept
{
    static const auto release =
        original<bool(const QFutureInterfaceBase *)>("_ZNK20QFutureInterfaceBase6derefTEv");
    const Arrival end(&mutex());
    __tsan_release(&mutex());
    return release(this);
}
