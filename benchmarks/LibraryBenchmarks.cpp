/// What a person waits for who types into the search field of a library of 10,000 skills: every key stroke
/// asks the index for the first page. A stroke goes unnoticed if it takes less than one frame of the screen,
/// 16 ms. The words are typed letter by letter, from the empty field on; each benchmark's label is the text
/// that stands in the field. Making the index comes once after each change of the library.

#include <VORNELCore/LibraryQuery.h>

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

void keyStroke(benchmark::State &state, const QString &word)
{
    const LibraryIndex index(library());
    const LibraryQuery::Filter filter{word.left(state.range(0)), {}, {}};
    SkillPage page;
    for (auto _ : state)
        benchmark::DoNotOptimize(page = index.skillPage(filter, 1));
    state.SetLabel(filter.searchText.toStdString());
    state.counters["hits"] = static_cast<double>(page.pagination.itemCount());
}

void makeIndex(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(LibraryIndex(library()));
}

BENCHMARK_CAPTURE(keyStroke, word, u"Réseau"_s)->DenseRange(0, 6)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keyStroke, number, u"1234"_s)->DenseRange(1, 4)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keyStroke, absent, u"kayak"_s)->DenseRange(1, 5)->Unit(benchmark::kMillisecond);
BENCHMARK(makeIndex)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
