#pragma once

#include <VORNELCommand/Syntax/CommandLine.h>
#include <VORNELCore/Services/CopyAdopting.h>
#include <VORNELCore/Services/CopyInspecting.h>
#include <VORNELCore/Services/CopyRepairing.h>
#include <VORNELCore/Services/CreationReviewing.h>
#include <VORNELCore/Services/FileEditing.h>
#include <VORNELCore/Services/HistoryKeeping.h>
#include <VORNELCore/Services/ImportReviewing.h>
#include <VORNELCore/Services/NewSkillFinding.h>
#include <VORNELCore/Services/PropertyEditing.h>
#include <VORNELCore/Services/RecoveryKeeping.h>
#include <VORNELCore/Services/SkillChecking.h>
#include <VORNELCore/Services/SkillExchange.h>
#include <VORNELCore/Services/TargetComparing.h>
#include <VORNELCore/Services/TrashInspecting.h>
#include <VORNELCore/Services/WorkspaceServicing.h>

namespace vornel {

/// The program's exit codes.
namespace ExitCode {
inline constexpr int success = 0;
inline constexpr int needsAttention = 1;
inline constexpr int failure = 2;
inline constexpr int usage = 64;
} // namespace ExitCode

/// The syntax of every command.
QList<CommandSyntax> commandSyntaxes();

/// What commands work with: one service under each of its interfaces.
struct Services
{
    WorkspaceServicing &workspace;
    CopyInspecting &copies;
    TrashInspecting &trash;
    ImportReviewing &imports;
    NewSkillFinding &newSkills;
    TargetComparing &targets;
    CopyRepairing &repairs;
    CopyAdopting &adoptions;
    HistoryKeeping &history;
    CreationReviewing &creations;
    RecoveryKeeping &recovery;
    PropertyEditing &properties;
    SkillChecking &checks;
    SkillExchange &exchange;
    FileEditing &files;
};

/// Runs a command on services whose `bootstrap` returned `overview`, prints its result and returns the exit
/// code. Throws what the services throw, and `CommandFailure`.
int runCommand(const Invocation &invocation, const Services &services, const WorkspaceOverview &overview);

} // namespace vornel
