#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

namespace vornel {

/// The user's categories, in the order of their creation. The content of "categories.json".
struct CategoryCatalog
{
    Q_GADGET
    Q_PROPERTY(qint64 schemaVersion MEMBER schemaVersion)
    Q_PROPERTY(QList<vornel::SkillCategory> categories MEMBER categories)

public:
    qint64 schemaVersion = 1;
    QList<SkillCategory> categories;

    bool contains(const QString &id) const;

    /// The category of this identifier; throws `integrityFailure` when there is none.
    SkillCategory &find(const QString &id);

    /// Throws `integrityFailure` unless identifiers and names are unique, "other" is there and protected, and
    /// every name and colour is valid.
    void check() const;

    /// Throws `integrityFailure` when a newer version of the program wrote the catalog.
    void refuseIfNewer() const;
};

/// Reads and checks the catalog. Throws `integrityFailure` when it can't be read, decoded or accepted.
CategoryCatalog readCategoryCatalog(const Workspace &workspace);

/// Replaces the catalog, unless a newer version of the program wrote it. Throws `integrityFailure`.
void writeCategoryCatalog(const CategoryCatalog &catalog, const Workspace &workspace);

/// Writes the first catalog of a workspace: the built-in categories, and one for every further identifier
/// that manifests name. An existing catalog is only checked.
void prepareCategoryCatalog(const Workspace &workspace);

} // namespace vornel
