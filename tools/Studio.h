#pragma once

#include <VORNELApp/App/VORNELApp.h>
#include <VORNELApp/Model/AppModel.h>

#include <QTemporaryDir>

#include <filesystem>
#include <optional>

namespace vornel {

/// A scratch copy of the demonstration library, and an application on it.
class Studio
{
public:
    /// With `isBroken`, the workspace lies in an assistant's folder, so that the start fails.
    explicit Studio(bool isBroken = false);

    VORNELApp &application() { return *m_application; }
    AppModel &model() { return m_application->model(); }

    /// A place in the scratch folder: "claude/relecture-de-code".
    std::filesystem::path path(const char *below) const;

    /// Makes a folder that isn't VORNEL's, with a note in it.
    void occupy(const std::filesystem::path &folder) const;

    /// Gives the imported skills a name for people, their description in full, a category and tags.
    void classifySkills();

    /// The identifier of the skill of this slug, which has to be in the library.
    QUuid idOf(const QString &slug);

    /// Opens a skill, and waits until its copies have been looked at.
    void open(const QString &slug);

    /// Waits until no operation runs.
    void settle();

    /// Waits until the last confirmation has gone.
    void quieten();

    /// Lets what isn't an operation of the model come to its end: the look at copies and files.
    static void rest();

private:
    QTemporaryDir m_folder;
    std::optional<VORNELApp> m_application;
};

} // namespace vornel
