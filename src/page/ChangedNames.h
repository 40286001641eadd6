#pragma once

#include <QMutex>
#include <QStringList>

#include <memory>

/// The names of the features that changed since a page's last refresh. While the list is held,
/// whatever is noted on this thread waits in a side list, so that it neither deadlocks nor is lost.
/// It outlives the page, which may end in its own refresh.
class ChangedNames
{
public:
    class Hold;

    void note(const QString& name);
    void clear();
    bool isHeld() const { return m_isHeld; }

    QStringList& list() { return m_list; }
    QMutex& mutex() { return m_mutex; }

private:
    static void append(QStringList& names, const QString& name);

    QMutex m_mutex;
    QStringList m_list;
    QStringList m_waiting;
    bool m_isHeld = false;
};

/// Keeps the list locked; only the outermost does, as when a refresh shows or hides the page.
class ChangedNames::Hold
{
public:
    explicit Hold(std::shared_ptr<ChangedNames> names);
    ~Hold();
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

    bool isOutermost() const { return m_isOutermost; }
    /// Empties the list, but for what waits.
    void handled() { m_names->m_list.clear(); }

private:
    std::shared_ptr<ChangedNames> m_names;
    bool m_isOutermost;
};
