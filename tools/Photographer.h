#pragma once

#include "Studio.h"

#include <QSize>
#include <QStringList>
#include <QUrl>

class QMimeData;
class QQuickItem;
class QQuickWindow;

namespace vornel {

/// Takes pictures of the window, and does in it what a user would.
class Photographer
{
public:
    /// The pictures of these names go into `folder`; without a name, all do.
    Photographer(QString folder, QSize size, QStringList chosen);

    /// Opens the window on a studio.
    void watch(Studio &studio);

    void take(const QString &name) const;

    /// The same, before anything else happens.
    void takeAtOnce(const QString &name) const;

    /// Clicks the button that reads `text`; with `row`, the one in that row.
    void click(const QString &text, const QString &row = {}) const;

    /// Waits until a button that reads `text` is shown.
    void await(const QString &text) const;

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

    /// Holds a dragged text over the button that reads `text`.
    void hold(const QString &payload, const QString &text) const;

    /// Holds files over the middle of the window.
    void hold(const QList<QUrl> &files) const;

    /// Ends the drag without a drop.
    void letGo() const;

    /// Tries to close the window.
    void close() const;

    /// Writes a text key by key.
    void write(const QString &text) const;

    /// Puts a text at once into whatever has the keyboard.
    void type(const QString &text) const;

private:
    void hold(const QMimeData &data, const QPoint &place) const;
    QQuickItem *button(const QString &text, const QString &row = {}) const;

    QString m_folder;
    QSize m_size;
    QStringList m_chosen;
    QQuickWindow *m_window = nullptr;
};

} // namespace vornel
