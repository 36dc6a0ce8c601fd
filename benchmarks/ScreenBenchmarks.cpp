/// What a change of page, filter or search costs the main thread while the window shows a library of 2,000
/// skills: the model takes the change, every binding follows, the items are laid out, and the scene to be
/// drawn is brought up to date. Drawing it isn't part of the figure. It goes unnoticed if it takes less than
/// one frame of the screen, 16 ms. Each change is timed there and back, and the slower way counts.

#include "SampleSkills.h"

#include <VORNELApp/App/VORNELApp.h>
#include <VORNELApp/Library/CardPage.h>

#include <QCoro/QCoroTask>
#include <QGuiApplication>
#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>

#include <benchmark/benchmark.h>

#include <chrono>

Q_IMPORT_QML_PLUGIN(VORNELAppPlugin)
Q_IMPORT_QML_PLUGIN(VORNELDesignSystemPlugin)

using namespace Qt::StringLiterals;

namespace {

using namespace vornel;

constexpr int librarySize = 2'000;

/// The working window, drawn into a picture.
class Screen
{
public:
    Screen()
    {
        QCoro::waitFor(model.start());
        VORNELApp::prepare(m_engine);
        QQmlComponent component(&m_engine);
        component.setData("import VORNELApp\nWorkspaceShellView {}", {});
        m_shell.reset(qobject_cast<QQuickItem *>(
            component.createWithInitialProperties({{u"model"_s, QVariant::fromValue(&model)}})));
        if (m_shell == nullptr)
            qFatal("%s", qUtf8Printable(component.errorString()));
        m_shell->setParentItem(m_window.contentItem());
        m_shell->setSize(m_picture.size());
        m_window.setGeometry(m_picture.rect());
        m_window.setRenderTarget(QQuickRenderTarget::fromPaintDevice(&m_picture));
        m_control.initialize();
        while (page == nullptr) {
            show();
            QCoreApplication::processEvents();
            page = m_shell->findChild<CardPage *>();
        }
    }

    /// Does what the main thread does after a change, up to the drawing.
    void follow()
    {
        QCoreApplication::sendPostedEvents();
        m_control.polishItems();
        m_control.sync();
    }

    void show()
    {
        follow();
        m_control.render();
    }

    std::shared_ptr<SampleService> service = std::make_shared<SampleService>(librarySize);
    AppModel model{service,
                   {},
                   {},
                   {},
                   std::make_shared<QSettings>(u"/dev/null"_s, QSettings::IniFormat),
                   std::make_shared<LocalDrafts>(std::make_shared<PosixFileSystem>(), "/dev/null")};
    CardPage *page = nullptr;

private:
    QQmlEngine m_engine;
    QQuickRenderControl m_control;
    QQuickWindow m_window{&m_control};
    QImage m_picture{1240, 800, QImage::Format_ARGB32_Premultiplied};
    std::unique_ptr<QQuickItem> m_shell;
};

using Change = void (*)(Screen &);

/// Seconds that the main thread takes for a change.
double seconds(Screen &screen, Change change)
{
    const auto begin = std::chrono::steady_clock::now();
    change(screen);
    screen.follow();
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    screen.show();
    return taken.count();
}

void showEverything(Screen &screen)
{
    screen.page->setCurrentPage(1);
    screen.model.setSearchText({});
    if (screen.page->isFiltered())
        screen.page->clearFilters();
}

void offer(Screen &screen, const char *name, Change change)
{
    const auto measure = [&screen, change](benchmark::State &state) {
        for (auto _ : state) {
            const double there = seconds(screen, change);
            state.SetIterationTime(std::max(there, seconds(screen, showEverything)));
        }
    };
    benchmark::RegisterBenchmark(name, measure)->UseManualTime()->Unit(benchmark::kMillisecond);
}

void offerAll(Screen &screen)
{
    offer(screen, "next page", [](Screen &s) { s.page->setCurrentPage(2); });
    offer(screen, "last page", [](Screen &s) { s.page->setCurrentPage(librarySize); });
    offer(screen, "category", [](Screen &s) { s.model.setSelectedCategory(u"design"_s); });
    offer(screen, "maturity", [](Screen &s) { s.model.setSelectedMaturity(Maturity::active); });
    offer(screen, "search for a letter", [](Screen &s) { s.model.setSearchText(u"b"_s); });
    offer(screen, "search for a word", [](Screen &s) { s.model.setSearchText(u"réseau"_s); });
    offer(screen, "search with few results", [](Screen &s) { s.model.setSearchText(u"1234"_s); });
    offer(screen, "search without results", [](Screen &s) { s.model.setSearchText(u"kayak"_s); });
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    Screen screen;
    benchmark::Initialize(&argc, argv);
    offerAll(screen);
    benchmark::RunSpecifiedBenchmarks();
}
