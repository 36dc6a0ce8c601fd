#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>

#include <QtQml/qqmlregistration.h>

namespace vornel {

/// What one card of the library shows, and its place in the grid.
struct LibraryCard
{
    Q_GADGET
    QML_VALUE_TYPE(libraryCard)
    Q_PROPERTY(vornel::SkillSummary skill MEMBER skill)
    Q_PROPERTY(vornel::SkillCategory category MEMBER category)
    Q_PROPERTY(QString age MEMBER age)
    Q_PROPERTY(QString stateText MEMBER stateText)
    Q_PROPERTY(QString problem MEMBER problem)
    Q_PROPERTY(int syncStateNumber READ syncStateNumber STORED false)
    Q_PROPERTY(QString errorText MEMBER errorText)
    Q_PROPERTY(bool isShown MEMBER isShown)
    Q_PROPERTY(bool isSelected MEMBER isSelected)
    Q_PROPERTY(int row MEMBER row)
    Q_PROPERTY(int column MEMBER column)
    Q_PROPERTY(int headersAbove MEMBER headersAbove)

public:
    SkillSummary skill;
    SkillCategory category;
    QString age;          ///< how long ago the skill was changed
    QString stateText;    ///< how the copies stand
    QString problem;      ///< why copies of the skill have failed; empty without such ones
    QString errorText;    ///< how many errors a check has found: "2 erreurs"; empty without any
    bool isShown = false; ///< whether there is a skill at this place of the page
    bool isSelected = false;
    int row = 0; ///< counted over all sections
    int column = 0;
    int headersAbove = 0;

    /// The state of the copies, counted from `unknown`. Qt 6.4 compiles no expression with its enumeration.
    int syncStateNumber() const { return static_cast<int>(skill.syncState); }

    bool operator==(const LibraryCard &) const = default;
};

/// The header of one section of the library, above the cards of `row`.
struct LibraryHeading
{
    Q_GADGET
    QML_VALUE_TYPE(libraryHeading)
    Q_PROPERTY(vornel::SkillCategory category MEMBER category)
    Q_PROPERTY(QString countText MEMBER countText)
    Q_PROPERTY(bool isShown MEMBER isShown)
    Q_PROPERTY(int row MEMBER row)
    Q_PROPERTY(int headersAbove MEMBER headersAbove)

public:
    SkillCategory category;
    QString countText; ///< how many skills of the category there are on all pages
    bool isShown = false;
    int row = 0;
    int headersAbove = 0;

    bool operator==(const LibraryHeading &) const = default;
};

} // namespace vornel
