#pragma once

#include "SlicedHighlighter.h"
#include "SyntaxTree.h"

#include <array>

namespace vornel {

/// Colours a file of code or data by its type; one of another type stays plain. A long text is read in
/// slices, too.
class CodeHighlighter : public vornel::SlicedHighlighter // by its full name, under which QML knows it
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString path READ path WRITE setPath REQUIRED)
    Q_PROPERTY(QColor commentColor MEMBER m_commentColor)
    Q_PROPERTY(QColor stringColor MEMBER m_stringColor)
    Q_PROPERTY(QColor constantColor MEMBER m_constantColor)
    Q_PROPERTY(QColor keywordColor MEMBER m_keywordColor)
    Q_PROPERTY(QColor nameColor MEMBER m_nameColor)

public:
    explicit CodeHighlighter(QObject *parent = nullptr);

    /// The file's path, which tells its type; where it doesn't, the first line may.
    QString path() const { return m_path; }
    void setPath(const QString &path);

    void setTextDocument(QTextDocument *document) override;

protected:
    void highlightBlock(const QString &text) override;

private:
    const Grammar *grammar() const;
    void begin();
    void followEdit(int from, int added);
    void read();
    void findParts();

    QString m_path;
    QColor m_commentColor;
    QColor m_stringColor;
    QColor m_constantColor;
    QColor m_keywordColor;
    QColor m_nameColor;
    std::array<QTextCharFormat, 6> m_formats; ///< by `Grammar::Role`
    const Grammar *m_grammar = nullptr;
    std::optional<SyntaxTree> m_tree;
    QTimer m_reading;  ///< runs out when the main thread is free to go on reading
    TextRange m_found; ///< where the parts are known, the lines around the one that was coloured last
    QList<ColoredPart> m_parts; ///< those there
};

} // namespace vornel
