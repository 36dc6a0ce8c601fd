#pragma once

#include <QObject>

namespace vornel {

/// Tells the event loop of the first SIGTERM or SIGINT. A second one ends the process as usual, but not
/// before the first has been dealt with. There is one object at a time. A signal that the process was started
/// to ignore stays ignored.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;
    Q_DISABLE_COPY_MOVE(TerminationSignals)

Q_SIGNALS:
    void received();
};

} // namespace vornel
