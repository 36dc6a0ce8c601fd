#include "CommandFailure.h"
#include "CommandLine.h"
#include "Commands.h"
#include "Terminal.h"

#include <VORNELCore/ErrorMessage.h>
#include <VORNELCore/SerializedForms.h>
#include <VORNELCore/VORNELProduct.h>
#include <VORNELCore/VORNELWorkspaceError.h>
#include <VORNELInfrastructure/DefaultWorkspaceLocator.h>
#include <VORNELInfrastructure/LocalWorkspaceService.h>
#include <VORNELInfrastructure/PosixFileSystem.h>
#include <VORNELInfrastructure/WorkspaceRoots.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <cstdlib>
#include <span>

using namespace Qt::StringLiterals;
using namespace vornel;

namespace {

QStringList decodedArguments(std::span<char *> arguments)
{
    QStringList decoded;
    for (const char *argument : arguments.subspan(1)) {
        const auto text = textFromUtf8(argument);
        if (!text)
            throw UsageError(u"Un argument n’est pas de l’UTF-8 valide."_s);
        decoded.append(*text);
    }
    return decoded;
}

WorkspaceRoots rootsFor(const Invocation &invocation)
{
    const Environment environment = [](const char *variable) { return std::getenv(variable); };
    const std::filesystem::path home = homeFolder(environment);
    WorkspaceRoots roots = WorkspaceRoots::fromEnvironment(environment, home, DefaultWorkspaceLocator(home));
    const auto replace = [&invocation](std::filesystem::path &root, const QString &option) {
        if (invocation.has(option))
            root = std::filesystem::absolute(pathFromText(invocation.value(option)));
    };
    replace(roots.workspace, u"workspace"_s);
    replace(roots.claude, u"claude"_s);
    replace(roots.codex, u"codex"_s);
    return roots;
}

int run(const Invocation &invocation)
{
    const WorkspaceRoots roots = rootsFor(invocation);
    LocalWorkspaceService service(std::make_shared<PosixFileSystem>(), FailureScope::Skill);
    const WorkspaceOverview overview = service.bootstrap(roots.workspace, roots.claude, roots.codex).result();
    return runCommand(invocation, {service, service, service, service, service}, overview);
}

QString errorCase(const std::exception &error)
{
    if (const auto *workspace = dynamic_cast<const VORNELWorkspaceError *>(&error))
        return workspace->caseName();
    if (const auto *command = dynamic_cast<const CommandFailure *>(&error))
        return command->caseName;
    return u"fileSystem"_s;
}

void reportFailure(const std::exception &error, bool asJson)
{
    const QString message = errorMessage(error);
    if (!asJson)
        return Terminal::printError(Terminal::printable(message));
    QJsonObject object{{u"error"_s, errorCase(error)}, {u"message"_s, message}};
    if (const auto folder = failedFolder(error); !folder.empty())
        object.insert(u"folder"_s, pathText(folder));
    if (const auto *command = dynamic_cast<const CommandFailure *>(&error)) {
        for (auto detail = command->details.begin(); detail != command->details.end(); ++detail)
            object.insert(detail.key(), detail.value());
    }
    Terminal::printError(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}

} // namespace

int main(int argc, char *argv[])
{
    Invocation invocation;
    try {
        invocation = parseCommandLine(decodedArguments({argv, static_cast<size_t>(argc)}), commandSyntaxes());
        if (invocation.command == u"help"_s)
            Terminal::print(usageText());
        else if (invocation.command == u"version"_s)
            Terminal::print(u"vornelctl "_s + QStringLiteral(VORNEL_VERSION) + u'\n');
        else
            return run(invocation);
        return ExitCode::success;
    } catch (const UsageError &error) {
        Terminal::printError(QString::fromUtf8(error.what()) + u"\n\n"_s + usageText().trimmed());
        return ExitCode::usage;
    } catch (const std::exception &error) {
        reportFailure(error, invocation.has(u"json"_s));
        return ExitCode::failure;
    }
}
