#pragma once

#include "SteppedFileSystem.h"

#include <QTemporaryDir>

#include <map>
#include <mutex>
#include <set>

namespace vornel {

/// The disk of a machine that loses its power: what was not flushed until then may be forgotten.
class PowerCutFileSystem : public SteppedFileSystem
{
public:
    /// What survives of the changes that were not flushed: nothing; every name, but no byte; or a random
    /// part, with the changes of names up to some moment.
    enum class Survival { Nothing, Names, Some };

    PowerCutFileSystem();

    /// Lets the power go before the n-th change or flush from now on, counted from 1. What was done until now
    /// is taken as flushed.
    void cutAt(int step);

    /// Whether the power is gone; every change and flush since has failed.
    bool isOff() const { return m_isOff; }

    /// Changes and flushes since `cutAt`.
    int steps() const { return m_steps; }

    /// Makes the disk what a new start would find.
    void forget(Survival survival, unsigned seed = 0);

private:
    /// A file or folder, wherever it stands.
    using Identity = std::pair<dev_t, ino_t>;

    /// A change of names: how to undo it, and the folders that have to be flushed to make it permanent.
    struct Change
    {
        std::set<Identity> unflushed;
        std::function<void()> undo;
    };

    class Spot;

    static Identity identityOf(const Descriptor &descriptor);

    /// Makes a change and remembers how to undo it, or lets a flush make changes last.
    void take(const Step &step, const Make &make);
    void move(const Step &step, const Make &make);
    void bury(const Step &step, const Make &make);

    /// A free place for what was removed.
    Spot grave();

    std::mutex m_mutex; // changes come from several threads
    QTemporaryDir m_graves;
    Descriptor m_graveyard;
    std::vector<Change> m_changes;
    std::map<Identity, Descriptor> m_unflushedFiles;
    int m_steps = 0;
    int m_cut = 0;
    int m_graveCount = 0;
    bool m_isOff = false;
};

} // namespace vornel
