#pragma once

#include <VORNELInfrastructure/PosixFileSystem.h>

#include <QTemporaryDir>

#include <functional>
#include <map>
#include <mutex>
#include <random>
#include <set>

namespace vornel {

/// The disk of a machine that loses its power: what was not flushed until then may be forgotten.
class PowerCutFileSystem : public PosixFileSystem
{
public:
    /// What survives of what was not flushed: nothing; every name, but no byte; or what chance decides, names
    /// as far as to some moment.
    enum class Survival { Nothing, Names, Some };

    /// Lets the power go before the n-th change or flush from now on, counted from 1. What was done until now
    /// is taken as flushed.
    void cutAt(int step);

    /// Whether the power is gone; every change and flush since has failed.
    bool isOff() const { return m_isOff; }

    /// Changes and flushes since `cutAt`.
    int steps() const { return m_steps; }

    /// Makes the disk what a new start would find.
    void forget(Survival survival, unsigned seed = 0);

    Folder createFolder(const Folder &parent, const std::string &name) override;
    File createFile(const Folder &folder, const std::string &name) override;
    void write(const File &file, QByteArrayView bytes) override;
    void rename(const Place &from, const Place &to, RenameMode mode) override;
    void remove(const Folder &folder, const std::string &name) override;
    void copyLink(const Place &from, const Place &to) override;
    void flush(const File &file) override;
    void flush(const Folder &folder) override;
    void flushVolume(const Folder &folder) override;

private:
    /// A file or folder, wherever it stands.
    using Identity = std::pair<dev_t, ino_t>;

    /// A change of names: what undoes it, and the folders that must be flushed before it can't be forgotten.
    struct Change
    {
        std::set<Identity> unflushed;
        std::function<void()> undo;
    };

    static Identity identityOf(const Descriptor &descriptor);

    /// Counts a change or flush; throws when there is no power.
    void step();
    void remember(std::set<Identity> folders, std::function<void()> undo);
    void rememberCreation(const Folder &folder, const std::string &name);

    /// A free name in the folder that keeps what was removed.
    std::string grave();

    std::recursive_mutex m_mutex; // changes come from several threads
    QTemporaryDir m_graves;
    std::vector<Change> m_changes;
    std::map<Identity, Descriptor> m_unflushedFiles;
    int m_steps = 0;
    int m_cut = 0;
    int m_graveCount = 0;
    bool m_isOff = false;
};

} // namespace vornel
