/// What typing in a text of one megabyte costs the main thread, in the window's own editor: the key stroke,
/// the layout and the handing over to the renderer, without the drawing. It goes unnoticed if it takes less
/// than one frame of the screen, 16 ms. A letter is typed at the beginning, in the middle and at the end of
/// the text.

#include <VORNELApp/App/VORNELApp.h>
#include <VORNELApp/Model/AppModel.h>
#include <VORNELInfrastructure/Disk/PosixFileSystem.h>
#include <VORNELInfrastructure/Drafts/LocalDrafts.h>
#include <VORNELInfrastructure/Workspace/LocalWorkspaceService.h>

#include <QCoro/QCoroTask>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlComponent>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

Q_IMPORT_QML_PLUGIN(VORNELAppPlugin)
Q_IMPORT_QML_PLUGIN(VORNELDesignSystemPlugin)

using namespace Qt::StringLiterals;

namespace {

using namespace vornel;

constexpr qsizetype megabyte = 1'048'576;

QString sampleText()
{
    const QString section =
        u"## Une étape\n\nLe texte dit *quoi* faire, `comment`, et **pourquoi** ; les lignes sont "
        "longues comme on les écrit.\n\n- un point, puis [un lien](https://example.org)\n"_s;
    QString text;
    while (text.toUtf8().size() < megabyte)
        text += section.repeated(100);
    return text;
}

/// The editor on a skill with the large text, in a window that nobody sees.
class Editor
{
public:
    Editor() : m_window(&m_control)
    {
        const auto service = std::make_shared<LocalWorkspaceService>(std::make_shared<PosixFileSystem>());
        const std::filesystem::path root = m_folder.path().toStdString();
        m_model = std::make_unique<AppModel>(
            service, root / "workspace", root / "claude", root / "codex",
            std::make_shared<QSettings>(u"/dev/null"_s, QSettings::IniFormat),
            std::make_shared<LocalDrafts>(std::make_shared<PosixFileSystem>(), root / "workspace"));
        QCoro::waitFor(m_model->start());
        CreateSkillRequest request;
        request.slug = request.displayName = u"longue"_s;
        request.category = SkillCategory::otherID;
        request.skillMD = sampleText();
        QCoro::waitFor(m_model->createSkill(request));
        show();
    }

    ~Editor() { m_view.reset(); }
    Q_DISABLE_COPY_MOVE(Editor)

    QQuickItem *area() const { return m_window.activeFocusItem(); }

    void type(Qt::Key key, const QString &text)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&m_window, &event);
        prepareFrame();
    }

    void prepareFrame()
    {
        m_control.polishItems();
        m_control.sync();
    }

private:
    void show()
    {
        VORNELApp::prepare(m_engine);
        m_window.resize(1240, 800);
        QQmlComponent component(&m_engine, QUrl(u"qrc:/qt/qml/VORNELApp/SkillEditorView.qml"_s));
        m_view.reset(qobject_cast<QQuickItem *>(
            component.createWithInitialProperties({{u"model"_s, QVariant::fromValue(m_model.get())}})));
        if (m_view == nullptr)
            qFatal("%s", qUtf8Printable(component.errorString()));
        m_view->setParentItem(m_window.contentItem());
        m_view->setSize(m_window.size());
        m_view->forceActiveFocus();
        QCoreApplication::processEvents();
        prepareFrame();
    }

    QTemporaryDir m_folder;
    std::unique_ptr<AppModel> m_model;
    QQmlEngine m_engine;
    QQuickRenderControl m_control;
    QQuickWindow m_window;
    std::unique_ptr<QQuickItem> m_view;
};

/// Made by the first benchmark, and destroyed before the application.
std::unique_ptr<Editor> &stage()
{
    static std::unique_ptr<Editor> editor;
    return editor;
}

Editor &editor()
{
    if (stage() == nullptr)
        stage() = std::make_unique<Editor>();
    return *stage();
}

void keyStroke(benchmark::State &state, double place)
{
    QQuickItem *area = editor().area();
    area->setProperty("cursorPosition", static_cast<int>(area->property("length").toInt() * place));
    editor().prepareFrame();
    for (auto _ : state) {
        editor().type(Qt::Key_A, u"a"_s);
        state.PauseTiming();
        editor().type(Qt::Key_Backspace, {});
        state.ResumeTiming();
    }
    state.counters["characters"] = area->property("length").toInt();
}

BENCHMARK_CAPTURE(keyStroke, beginning, 0.0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keyStroke, middle, 0.5)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keyStroke, end, 1.0)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    stage().reset();
}
