#pragma once

#include "Answer.h"

#include <QObject>

#include <functional>
#include <utility>

namespace vornel {

/// Asks one question at a time: of those that come while one is being answered only the last one is asked,
/// and only the answer to it is shown. Belongs to `owner`, with which it goes.
template <typename T>
class LatestAnswer
{
public:
    using Question = std::function<QCoro::Task<T>()>;

    LatestAnswer(QObject *owner, std::function<void(const T &)> show)
        : m_owner(owner), m_show(std::move(show))
    {}

    void ask(Question question)
    {
        m_next = std::move(question);
        m_isWanted = true;
        if (!m_isAsking)
            askNext();
    }

    /// Shows no answer to what was asked.
    void forget()
    {
        m_next = {};
        m_isWanted = false;
    }

private:
    void askNext()
    {
        m_isAsking = true;
        const Question question = std::exchange(m_next, {});
        QCoro::connect(question(), m_owner, [this](const T &answer) {
            m_isAsking = false;
            if (m_next)
                askNext();
            else if (m_isWanted)
                m_show(answer);
        });
    }

    QObject *const m_owner;
    const std::function<void(const T &)> m_show;
    Question m_next;
    bool m_isAsking = false;
    bool m_isWanted = false;
};

} // namespace vornel
