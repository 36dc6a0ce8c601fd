#pragma once

#include "AppModel.h"

namespace vornel {

/// What the user fills in on a sheet, and the model is asked to keep. The reason of a refusal stays here, at
/// what was typed, and not in the model.
class EntryForm : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model NOTIFY modelChanged REQUIRED)
    Q_PROPERTY(QString refusal READ refusal NOTIFY refusalChanged)
    Q_PROPERTY(bool isWaiting READ isWaiting NOTIFY isWaitingChanged)

public:
    using QObject::QObject;

    /// Why the model refused; empty unless it did, and once that is forgotten.
    QString refusal() const { return m_refusal; }

    Q_INVOKABLE void forgetRefusal();

    /// Whether the model is still at what it was asked for, which can't be taken back.
    bool isWaiting() const { return m_isWaiting; }

Q_SIGNALS:
    void modelChanged();
    void refusalChanged();
    void isWaitingChanged();

    /// The model has done what it was asked for.
    void accepted();

protected:
    AppModel *model() const { return m_model; }

    /// The name of the workspace error behind the refusal; empty without one.
    QString refusalCase() const { return m_refusalCase; }

    /// Waits for what the model was asked for; `accepted` follows, or a refusal.
    void await(QCoro::Task<Outcome> request);

    /// The form is filled in anew. What the model still does concerns it no more.
    void beginAnew();

private:
    void conclude(const Outcome &outcome);
    void refuse(const QString &reason, const QString &errorCase);
    void setWaiting(bool isWaiting);

    AppModel *m_model = nullptr;
    int m_entry = 0; ///< counts how often the form was begun
    QString m_refusal;
    QString m_refusalCase;
    bool m_isWaiting = false;
};

} // namespace vornel
