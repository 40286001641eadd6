#pragma once

#include "features/SdkValues.h"

#include <QMap>
#include <QString>

#include <any>
#include <chrono>
#include <memory>
#include <utility>

/// Whether the camera still answers; all pages and tables of a camera share one. One that was
/// unplugged lets every call wait before it fails.
///
/// The link stops no call: what makes many asks it, an edit never does. It hears of values, ranges,
/// increments and access; names and types answer when the camera is gone. For the GUI thread only.
class CameraLink
{
public:
    using Clock = std::chrono::steady_clock;
    using Milliseconds = std::chrono::milliseconds;

    using Lasting = std::shared_ptr<void>;        ///< the link must outlive it
    using Question = std::pair<const void*, int>; ///< of a feature

    /// What may go into failing calls while observers are registered or let go.
    static constexpr std::chrono::seconds patience{1};

    /// Two features in a row that failed after 100 ms or more make a loss; any answer ends it.
    void told(const QString& feature, ZebErrorType result, Milliseconds duration);
    /// How many calls it was told of.
    int heard() const { return m_heard; }
    bool isLost() const { return m_isLost; }
    /// The last that was heard is a call which failed slowly.
    bool isDoubtful() const { return m_isDoubtful; }
    /// Whether a lost camera is to be asked for a value again: each second, later every five.
    bool isDue() const { return m_isLost && Clock::now() >= m_nextQuestion; }
    int questions() const { return m_questions; }
    /// True once for each loss, for whoever tells the user.
    bool takeLoss() { return m_isLost && !std::exchange(m_isLossTaken, true); }
    /// The camera is lost and many reads are under way: the rest is left.
    bool isClosed() const { return m_isLost && m_manyReads > 0; }

    /// Whether one more failing call is within the patience, for all pages within five seconds.
    bool mayPart() const;
    void parted(ZebErrorType result, Milliseconds duration);

    /// While it lives, look-ups and reads by way of a manager end at the loss: nothing more is
    /// asked, and what was not told counts as not known.
    Lasting manyReads() { return counted(m_manyReads); }
    /// While it lives, what the camera has told is not asked again until something is written.
    Lasting memory();
    /// Empty when it is to be asked.
    std::any remembered(const Question& question) const
    {
        return m_memories > 0 ? m_known.value(question) : std::any();
    }
    void remember(const Question& question, const std::any& answer)
    {
        if (m_memories > 0)
            m_known[question] = answer;
    }
    /// One feature may change others.
    ZebErrorType written(ZebErrorType result)
    {
        m_known.clear();
        return result;
    }

    static bool isSlow(Milliseconds duration);
    static Milliseconds since(Clock::time_point begin)
    {
        return std::chrono::duration_cast<Milliseconds>(Clock::now() - begin);
    }

private:
    static Lasting counted(int& count);

    bool m_isLost = false;
    bool m_isDoubtful = false;
    bool m_isLossTaken = false;
    int m_heard = 0;
    int m_manyReads = 0;
    int m_memories = 0;
    QMap<Question, std::any> m_known;
    int m_questions = 0;
    QString m_lastFailed;
    Clock::time_point m_nextQuestion;
    Clock::time_point m_firstParting;
    Milliseconds m_parting{0};
    Milliseconds m_lastParting{0};
};
