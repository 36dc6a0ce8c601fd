#pragma once

#include "Enumerations.h"

#include <QList>
#include <QUuid>

namespace vornel {

/// An operation that can be taken back.
struct UndoStep
{
    Q_GADGET
    Q_PROPERTY(QUuid id MEMBER id)
    Q_PROPERTY(vornel::UndoableAction action MEMBER action)
    Q_PROPERTY(bool isUndo MEMBER isUndo)

public:
    QUuid id = {};                                ///< its own, to name it by
    UndoableAction action = UndoableAction::save; ///< what it has done or, if it is an undo, taken back
    bool isUndo = false; ///< whether it has taken back another one, so that undoing it is redoing

    bool operator==(const UndoStep &) const = default;
};

} // namespace vornel
