#include "Scratch.h"
#include "StartingState.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

/// Gives up root's rights, with which every file could be read.
class Unprivileged
{
public:
    Unprivileged()
    {
        constexpr uid_t nobody = 65534;
        EXPECT_TRUE(::geteuid() != 0 || ::seteuid(nobody) == 0);
    }
    ~Unprivileged() { EXPECT_EQ(::seteuid(::getuid()), 0); }
    Q_DISABLE_COPY_MOVE(Unprivileged)
};

TEST(TargetFolder, IsLookedIntoAsFarAsItMayBe)
{
    const Unprivileged rights;
    TestWorkspace workspace;
    const QUuid id = workspace.create(u"demo"_s).manifest.id;
    const auto stateUnder = [&](fs::perms permissions) {
        fs::permissions(workspace.path("codex"), permissions);
        return workspace.stateOf(u"demo"_s);
    };
    const auto tolerant = startService(workspace.path(), workspace.manager, FailureScope::Skill);
    EXPECT_EQ(stateUnder(fs::perms::owner_exec), SyncState::inSync) << "can be searched, and not listed";
    EXPECT_EQ(stateUnder(fs::perms::owner_read), SyncState::missing) << "can be listed, and not searched";
    EXPECT_EQ(tolerant->reload().result().skills.first().syncState, SyncState::failed);
    EXPECT_EQ(tolerant->wrongCopies().result().begin()->first().reason,
              u"Accès refusé\u00A0: "_s + pathText(workspace.path("codex")));
    EXPECT_TRUE(tolerant->occupants(QList<TargetPlace>{{TargetKind::codex, u"other"_s}}).result().isEmpty());
    EXPECT_EQ(stateUnder(fs::perms::none), SyncState::missing);
    EXPECT_EQ(stateUnder(fs::perms::owner_all), SyncState::inSync);

    const fs::path copy = workspace.path("codex/demo");
    fs::permissions(copy, fs::perms::owner_read);
    const auto blamed = [](const auto &operation) {
        try {
            operation();
        } catch (const fs::filesystem_error &error) {
            return error.path1();
        }
        return fs::path();
    };
    QFuture<SkillDetail> refused = tolerant->setAside(id, TargetKind::codex);
    tolerant->reload().waitForFinished(); // by then the service's thread has let go of the failure
    EXPECT_EQ(blamed([&] { refused.waitForFinished(); }), copy);
    fs::permissions(copy, fs::perms::owner_all);
}

} // namespace
} // namespace vornel
