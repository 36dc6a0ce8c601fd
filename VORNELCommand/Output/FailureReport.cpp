#include "FailureReport.h"

#include "CommandFailure.h"
#include "Terminal.h"

#include <VORNELCommand/Syntax/CommandLine.h>
#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

QString errorCase(const std::exception &error)
{
    if (const auto *workspace = dynamic_cast<const VORNELWorkspaceError *>(&error))
        return workspace->caseName();
    if (const auto *command = dynamic_cast<const CommandFailure *>(&error))
        return command->caseName;
    return dynamic_cast<const UsageError *>(&error) != nullptr ? u"usage"_s : u"fileSystem"_s;
}

} // namespace

QJsonObject failureObject(const std::exception &error)
{
    QJsonObject object{{u"error"_s, errorCase(error)}, {u"message"_s, errorMessage(error)}};
    if (const auto folder = failedFolder(error); !folder.empty())
        object.insert(u"folder"_s, pathText(folder));
    if (const auto *command = dynamic_cast<const CommandFailure *>(&error)) {
        for (auto detail = command->details.begin(); detail != command->details.end(); ++detail)
            object.insert(detail.key(), detail.value());
    }
    return object;
}

QJsonObject failureObject(const std::exception_ptr &error)
try {
    std::rethrow_exception(error);
} catch (const std::exception &known) {
    return failureObject(known);
}

void printFailure(const QJsonObject &failure)
{
    Terminal::printError(QString::fromUtf8(QJsonDocument(failure).toJson(QJsonDocument::Compact)));
}

} // namespace vornel
