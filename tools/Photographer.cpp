#include "Photographer.h"

#include <QGuiApplication>
#include <QMimeData>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

/// Everything is at its place at once, so that a picture never shows a movement half done.
void stopMotion(QQmlEngine &engine)
{
    QQmlComponent component(&engine);
    component.setData("import QtQml; import VORNELDesignSystem\n"
                      "QtObject { Component.onCompleted: Motion.isEnabled = false }",
                      {});
    delete component.create();
}

QQuickItem *buttonBelow(QQuickItem *item, const QString &text)
{
    if (item->property("text").toString() == text && item->property("checkable").isValid())
        return item;
    const auto children = item->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = child->isVisible() ? buttonBelow(child, text) : nullptr)
            return found;
    }
    return nullptr;
}

} // namespace

Photographer::Photographer(QString folder, QSize size, QStringList chosen)
    : m_folder(std::move(folder)), m_size(size), m_chosen(std::move(chosen))
{}

void Photographer::watch(Studio &studio)
{
    m_window = studio.application().showWindow();
    m_window->resize(m_size);
    stopMotion(studio.application().engine());
}

void Photographer::take(const QString &name) const
{
    QCoreApplication::processEvents();
    takeAtOnce(name);
}

void Photographer::takeAtOnce(const QString &name) const
{
    if (!m_chosen.isEmpty() && !m_chosen.contains(name))
        return;
    const QString file = m_folder + u'/' + name + u".png"_s;
    if (!m_window->grabWindow().save(file))
        qFatal("can't write %s", qUtf8Printable(file));
    qInfo("%s", qUtf8Printable(file));
}

QQuickItem *Photographer::button(const QString &text, const QString &row) const
{
    QQuickItem *top = m_window->contentItem();
    QQuickItem *found = buttonBelow(row.isEmpty() ? top : buttonBelow(top, row), text);
    if (found == nullptr)
        qFatal("no button %s", qUtf8Printable(text));
    return found;
}

void Photographer::click(const QString &text, const QString &row) const
{
    QMetaObject::invokeMethod(button(text, row), "clicked");
}

void Photographer::await(const QString &text) const
{
    const auto isShown = [&] { return buttonBelow(m_window->contentItem(), text) != nullptr; };
    if (!QTest::qWaitFor(isShown, 30'000))
        qFatal("no button %s", qUtf8Printable(text));
}

void Photographer::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(m_window, key, modifiers);
}

void Photographer::hold(const QString &payload, const QString &text) const
{
    QQuickItem *target = button(text);
    QMimeData data;
    data.setText(payload);
    hold(data, target->mapToScene(target->boundingRect().center()).toPoint());
}

void Photographer::hold(const QList<QUrl> &files) const
{
    QMimeData data;
    data.setUrls(files);
    hold(data, QPoint(m_size.width(), m_size.height()) / 2);
}

void Photographer::hold(const QMimeData &data, const QPoint &place) const
{
    QDragEnterEvent enter({}, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &enter);
    QDragMoveEvent move(place, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &move);
}

void Photographer::letGo() const
{
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(m_window, &leave);
}

void Photographer::close() const
{
    m_window->close();
}

void Photographer::write(const QString &text) const
{
    m_window->requestActivate();
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, m_window, Qt::Key_unknown, letter, Qt::NoModifier);
}

void Photographer::type(const QString &text) const
{
    m_window->requestActivate();
    QQuickItem *field = m_window->activeFocusItem();
    const int place = field->property("cursorPosition").toInt();
    QMetaObject::invokeMethod(field, "insert", Q_ARG(int, place), Q_ARG(QString, text));
}

} // namespace vornel
