#pragma once

#include <QSet>
#include <QStringList>
#include <QUuid>

/// The text that a drag of skills carries, so that it can go from one program to another.
namespace vornel::DragPayload {

/// "vornel-skills:" and the identifiers, in ascending order of their texts, with "," between them.
QString encode(const QSet<QUuid> &ids);

/// The identifiers that any of the dropped texts carries. Foreign texts and malformed identifiers are
/// skipped.
QSet<QUuid> decode(const QStringList &texts);

} // namespace vornel::DragPayload
