#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>

#include <QString>

/// What is read from the text of a "SKILL.md", and what is written into a new one.
namespace vornel::SkillText {

struct Metadata
{
    QString name;
    QString summary;
};

/// The most characters that a name or summary of a text may have: longer ones could make the manifest too
/// large to be read.
inline constexpr qsizetype longestMetadata = 1'000'000;

/// The values of the last lines that begin with "name:" and "description:", anywhere in the text. Without a
/// name, one is made from the slug; without a description, the summary is empty.
Metadata frontmatterMetadata(const QString &text, const QString &slug);

/// The text of a new skill for which the user gave none.
QString defaultSkillMD(const SkillManifest &manifest);

} // namespace vornel::SkillText
