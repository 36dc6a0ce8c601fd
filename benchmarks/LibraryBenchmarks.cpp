/// What a key stroke in the search field costs the main thread in a library of 10,000 skills, without the
/// drawing: the application model takes the text, the index answers, and the page tells its view what
/// changed. It goes unnoticed if it takes less than one frame of the screen, 16 ms. The words are typed
/// letter by letter; each benchmark's label is the text that stands in the field. A stroke is timed with the
/// one that takes it back. Making the index comes once after each change of the library.

#include "SampleSkills.h"

#include <VORNELApp/Library/CardPage.h>

#include <QCoreApplication>
#include <QCoro/QCoroTask>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

using namespace vornel;

constexpr int librarySize = 10'000;

void keyStroke(benchmark::State &state, const QString &word)
{
    const auto settings = std::make_shared<QSettings>(u"/dev/null"_s, QSettings::IniFormat);
    const auto service = std::make_shared<SampleService>(librarySize);
    const auto drafts = std::make_shared<LocalDrafts>(std::make_shared<PosixFileSystem>(), "/dev/null");
    AppModel model(service, {}, {}, {}, settings, drafts);
    QCoro::waitFor(model.start());
    SkillSelection selection;
    CardPage page;
    selection.setProperty("model", QVariant::fromValue(&model));
    page.setProperty("model", QVariant::fromValue(&model));
    page.setProperty("selection", QVariant::fromValue(&selection));
    const QString before = word.left(state.range(0) - 1);
    const QString after = word.left(state.range(0));
    for (auto _ : state) {
        model.setSearchText(before);
        model.setSearchText(after);
    }
    state.SetLabel(after.toStdString());
    state.counters["hits"] = page.skillCount();
}

void firstPage(benchmark::State &state)
{
    const LibraryIndex index(sampleSkills(librarySize));
    for (auto _ : state)
        benchmark::DoNotOptimize(index.skillPage({u"Réseau"_s, {}, {}}, 1));
}

void makeIndex(benchmark::State &state)
{
    const QList<SkillSummary> skills = sampleSkills(librarySize);
    for (auto _ : state)
        benchmark::DoNotOptimize(LibraryIndex(skills));
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
