#pragma once

#include <VORNELApp/Lists/FixedRowListModel.h>
#include <VORNELApp/Model/AppModel.h>

namespace vornel {

/// What an assistant will stumble over, and where.
struct FoundProblem
{
    Q_GADGET
    QML_VALUE_TYPE(foundProblem)
    Q_PROPERTY(bool isError MEMBER isError)
    Q_PROPERTY(QString path MEMBER path)
    Q_PROPERTY(int line MEMBER line)
    Q_PROPERTY(QString place READ place STORED false)
    Q_PROPERTY(QString message MEMBER message)

public:
    bool isError = false;
    QString path; ///< of the file in the skill's folder
    int line = 0; ///< in the file, from 1; 0 for the whole file
    QString message;

    /// "ligne 3" in the skill's text, and the path elsewhere.
    QString place() const;

    bool operator==(const FoundProblem &) const = default;
};

/// The problems of the skill that is edited, with the text as it is typed: errors first. Checked anew once
/// the typing pauses, and when the workspace was read.
class TextCheck : public FixedRowListModel<FoundProblem>
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model NOTIFY modelChanged REQUIRED)
    Q_PROPERTY(QQuickTextDocument *document MEMBER m_document REQUIRED)
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(int errorCount READ errorCount NOTIFY changed)
    Q_PROPERTY(QString countText READ countText NOTIFY changed)

public:
    explicit TextCheck(QObject *parent = nullptr);

    int count() const { return rowCount(); }
    int errorCount() const { return m_errorCount; }

    /// "2 erreurs, 1 conseil".
    QString countText() const;

    /// One of the problems, in their order.
    Q_INVOKABLE vornel::FoundProblem at(int index) const { return records().value(index); }

    /// Where a line of the text begins.
    Q_INVOKABLE int position(int line) const;

Q_SIGNALS:
    void modelChanged();
    void changed();

private:
    using Problems = Answer<QList<SkillProblem>>;

    void follow();
    void check();
    void show(const QList<SkillProblem> &problems);

    AppModel *m_model = nullptr;
    QQuickTextDocument *m_document = nullptr;
    int m_errorCount = 0;
    QTimer m_pause; ///< since the last key
    LatestAnswer<Problems> m_checking;
};

} // namespace vornel
