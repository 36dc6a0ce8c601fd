/// What a key stroke in the search field costs the main thread in a library of 10,000 skills, without the
/// drawing: the application model takes the text, the index answers, and the list tells its view what
/// changed. It goes unnoticed if it takes less than one frame of the screen, 16 ms. The words are typed
/// letter by letter; each benchmark's label is the text that stands in the field. A stroke is timed with the
/// one that takes it back. Making the index comes once after each change of the library.

#include <VORNELApp/SkillListModel.h>
#include <VORNELInfrastructure/LocalWorkspaceService.h>
#include <VORNELInfrastructure/PosixFileSystem.h>

#include <QCoreApplication>
#include <QCoro/QCoroTask>

#include <benchmark/benchmark.h>

#include <random>

using namespace Qt::StringLiterals;

namespace {

using namespace vornel;

constexpr int librarySize = 10'000;

/// Texts as people write them, the same at every run.
class SkillMaker
{
public:
    SkillSummary make(int number)
    {
        const QString name = words(2) + u' ' + QString::number(number);
        SkillSummary skill;
        skill.id = QUuid(static_cast<uint>(number), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
        skill.displayName = name.at(0).toUpper() + name.mid(1);
        skill.slug = QString(name).replace(u' ', u'-');
        skill.summary = words(16);
        skill.category = SkillCategory::defaults().at(number % SkillCategory::defaults().size()).id;
        skill.tags = words(4).split(u' ');
        return skill;
    }

private:
    QString words(int count)
    {
        static const QStringList vocabulary =
            u"analyse audit base carte code contrôle déploiement données "
            "élément export facture gestion image import journal lecture "
            "mesure modèle outil projet qualité rapport réseau révision "
            "sécurité serveur suivi synthèse tableau test texte vérification"_s.split(u' ');
        std::uniform_int_distribution<qsizetype> any(0, vocabulary.size() - 1);
        QStringList chosen;
        for (int word = 0; word < count; ++word)
            chosen.append(vocabulary.at(any(m_random)));
        return chosen.join(u' ');
    }

    std::mt19937 m_random{20'260'228}; // NOLINT(cert-msc51-cpp): the same library at every run
};

const QList<SkillSummary> &library()
{
    static const QList<SkillSummary> skills = [] {
        SkillMaker maker;
        QList<SkillSummary> made;
        for (int number = 0; number < librarySize; ++number)
            made.append(maker.make(number));
        return made;
    }();
    return skills;
}

/// A service that opens on the large library, and on no folder.
class LargeLibrary : public LocalWorkspaceService
{
public:
    LargeLibrary() : LocalWorkspaceService(std::make_shared<PosixFileSystem>()) {}

    QFuture<WorkspaceOverview> bootstrap(std::filesystem::path /*workspaceURL*/,
                                         std::filesystem::path /*claudeRoot*/,
                                         std::filesystem::path /*codexRoot*/) override
    {
        return QtFuture::makeReadyFuture(WorkspaceOverview{{}, library(), {}, SkillCategory::defaults()});
    }
};

void keyStroke(benchmark::State &state, const QString &word)
{
    const auto settings = std::make_shared<QSettings>(u"/dev/null"_s, QSettings::IniFormat);
    const auto service = std::make_shared<LargeLibrary>();
    AppModel model(service, service, {}, {}, {}, settings);
    QCoro::waitFor(model.start());
    SkillListModel list;
    list.setProperty("model", QVariant::fromValue(&model));
    const QString before = word.left(state.range(0) - 1);
    const QString after = word.left(state.range(0));
    for (auto _ : state) {
        model.setSearchText(before);
        model.setSearchText(after);
    }
    state.SetLabel(after.toStdString());
    state.counters["hits"] = list.rowCount();
}

void firstPage(benchmark::State &state)
{
    const LibraryIndex index(library());
    for (auto _ : state)
        benchmark::DoNotOptimize(index.skillPage({u"Réseau"_s, {}, {}}, 1));
}

void makeIndex(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(LibraryIndex(library()));
}

BENCHMARK_CAPTURE(keyStroke, word, u"Réseau"_s)->DenseRange(1, 6)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keyStroke, number, u"1234"_s)->DenseRange(1, 4)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keyStroke, absent, u"kayak"_s)->DenseRange(1, 5)->Unit(benchmark::kMillisecond);
BENCHMARK(firstPage)->Unit(benchmark::kMillisecond);
BENCHMARK(makeIndex)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
