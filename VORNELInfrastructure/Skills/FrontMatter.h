#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace vornel {

/// The head of a "SKILL.md": the YAML between its first line, "---", and the next such line. Lines are those
/// of the file, from 1.
struct FrontMatter
{
    struct Field
    {
        QString name;
        qint64 line = 1;
        std::optional<QString> text =
            {}; ///< nothing where the value is no text: none, a list, further fields
    };

    struct Failure
    {
        qint64 line = 1;
        QString reason; ///< in French, as the end of a sentence, with what mends it
    };

    bool isPresent = false;              ///< whether the text begins with such a line
    QList<Field> fields = {};            ///< in their order, each name once; none after a failure
    std::optional<Failure> failure = {}; ///< why what is there can't be read

    /// The field of this name; null when there is none.
    const Field *find(QStringView name) const;
};

/// Reads the head of a text, whatever it holds. Aliases are not followed.
FrontMatter readFrontMatter(const QString &text);

} // namespace vornel
