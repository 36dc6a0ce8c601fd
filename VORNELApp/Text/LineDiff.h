#pragma once

#include <QByteArrayView>
#include <QList>
#include <QObject>
#include <QString>

#include <optional>

namespace vornel {

/// One line of a comparison of two texts. One with neither number is a remark for the reader.
struct DiffLine
{
    Q_GADGET
    Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")
    Q_PROPERTY(vornel::DiffLine::Kind kind MEMBER kind)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(int oldNumber MEMBER oldNumber)
    Q_PROPERTY(int newNumber MEMBER newNumber)

public:
    /// On both sides, on the new one, on the old one, or in the place of lines that are left out.
    enum class Kind { context, added, removed, hunk };
    Q_ENUM(Kind)

    Kind kind = Kind::context;
    QString text;      ///< without its line end; a carriage return that may matter shows as "␍"
    int oldNumber = 0; ///< from 1; 0 where the line isn't on that side
    int newNumber = 0;

    bool operator==(const DiffLine &) const = default;
};

/// What leads from `before` to `after`, with three lines of context; empty where nothing differs, cut after
/// 5,000 lines, a mere remark for more than 200,000 lines in all. Nothing unless both are texts: UTF-8
/// without null characters. Throws `std::runtime_error` when memory is short.
std::optional<QList<DiffLine>> lineDiff(QByteArrayView before, QByteArrayView after);

} // namespace vornel
