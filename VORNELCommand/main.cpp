#include <VORNELCommand/Commands/Commands.h>
#include <VORNELCommand/Output/FailureReport.h>
#include <VORNELCommand/Output/StandardStreams.h>
#include <VORNELCommand/Output/Terminal.h>
#include <VORNELCommand/Syntax/CommandLine.h>
#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/VORNELProduct.h>
#include <VORNELInfrastructure/Disk/PosixFileSystem.h>
#include <VORNELInfrastructure/Workspace/DefaultWorkspaceLocator.h>
#include <VORNELInfrastructure/Workspace/LocalWorkspaceService.h>
#include <VORNELInfrastructure/Workspace/WorkspaceRoots.h>

#include <algorithm>
#include <cstdlib>
#include <span>
#include <string_view>

using namespace Qt::StringLiterals;
using namespace vornel;

namespace {

/// Whether "--json" stands among the options, even where the command line can't be understood.
bool asksForJson(std::span<char *> arguments)
{
    using namespace std::string_view_literals;
    const auto end = std::find(arguments.begin(), arguments.end(), "--"sv);
    return std::find(arguments.begin(), end, "--json"sv) != end;
}

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
    return runCommand(invocation,
                      {service, service, service, service, service, service, service, service, service,
                       service, service, service, service, service, service},
                      overview);
}

bool isUsageError(const std::exception &error)
{
    return dynamic_cast<const UsageError *>(&error) != nullptr;
}

void reportFailure(const std::exception &error, bool asJson)
{
    if (asJson)
        return printFailure(failureObject(error));
    Terminal::printError(
        Terminal::printable(errorMessage(error)) +
        (isUsageError(error) ? u"\n\n"_s + usageText(commandSyntaxes()).trimmed() : QString()));
}

} // namespace

int main(int argc, char *argv[])
{
    StandardStreams::replaceClosed();
    const std::span arguments(argv, static_cast<size_t>(argc));
    bool asJson = asksForJson(arguments);
    try {
        StandardStreams::requireOutput();
        const Invocation invocation = parseCommandLine(decodedArguments(arguments), commandSyntaxes());
        asJson = invocation.has(u"json"_s);
        if (invocation.command == u"help"_s)
            Terminal::print(usageText(commandSyntaxes()));
        else if (invocation.command == u"version"_s)
            Terminal::print(u"vornelctl "_s + QStringLiteral(VORNEL_VERSION) + u'\n');
        else
            return run(invocation);
        return ExitCode::success;
    } catch (const std::exception &error) {
        reportFailure(error, asJson);
        return isUsageError(error) ? ExitCode::usage : ExitCode::failure;
    }
}
