#pragma once

#include <QJsonObject>
#include <QString>

#include <stdexcept>

namespace vornel {

/// A failure of the program itself, under a name like those of the service's cases.
class CommandFailure : public std::runtime_error
{
public:
    CommandFailure(QString name, const QString &message, QJsonObject others = {})
        : std::runtime_error(message.toStdString()), caseName(std::move(name)), details(std::move(others))
    {}

    QString caseName;
    QJsonObject details; ///< added to its JSON form
};

} // namespace vornel
