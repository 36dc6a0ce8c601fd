/// What is read, and what is shown, of questions that come faster than their answers.

#include <VORNELApp/Model/LatestAnswer.h>

#include <QCoreApplication>
#include <QPromise>

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace vornel {
namespace {

class Reader : public QObject
{
public:
    void ask(int question)
    {
        m_answers.ask([this, question] {
            questions.push_back(question);
            return answerOf(promises[question].future());
        });
    }
    void answer(int question)
    {
        promises[question].start();
        promises[question].addResult(question);
        promises[question].finish();
        QCoreApplication::processEvents();
    }
    void forget() { m_answers.forget(); }

    std::map<int, QPromise<int>> promises;
    std::vector<int> questions;
    std::vector<int> shown;

private:
    LatestAnswer<Answer<int>> m_answers{
        this, [this](const Answer<int> &answer) { shown.push_back(answer.value.value()); }};
};

TEST(LatestAnswer, AsksAndShowsNoMoreThanTheLastQuestion)
{
    Reader reader;
    for (const int question : {1, 2, 3})
        reader.ask(question);
    EXPECT_EQ(reader.questions, std::vector{1});
    reader.answer(1);
    EXPECT_EQ(reader.questions, (std::vector{1, 3}));
    EXPECT_TRUE(reader.shown.empty());
    reader.answer(3);
    EXPECT_EQ(reader.shown, std::vector{3});
    reader.ask(4);
    reader.ask(5);
    reader.forget();
    reader.answer(4);
    EXPECT_EQ(reader.questions.back(), 4);
    EXPECT_EQ(reader.shown, std::vector{3});
}

} // namespace
} // namespace vornel
