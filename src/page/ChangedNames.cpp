#include "page/ChangedNames.h"

#include <QMutexLocker>

#include <utility>

void ChangedNames::append(QStringList& names, const QString& name)
{
    if (!names.contains(name))
        names.append(name);
}

void ChangedNames::note(const QString& name)
{
    if (m_isHeld) {
        append(m_waiting, name);
        return;
    }
    const QMutexLocker locker(&m_mutex);
    append(m_list, name);
}

void ChangedNames::clear()
{
    m_waiting.clear();
    if (!m_isHeld)
        m_mutex.lock();
    m_list.clear();
    if (!m_isHeld)
        m_mutex.unlock();
}

ChangedNames::Hold::Hold(std::shared_ptr<ChangedNames> names)
    : m_names(std::move(names))
    , m_isOutermost(!m_names->m_isHeld)
{
    if (!m_isOutermost)
        return;
    m_names->m_mutex.lock();
    m_names->m_isHeld = true;
}

ChangedNames::Hold::~Hold()
{
    if (!m_isOutermost)
        return;
    for (const QString& name : std::exchange(m_names->m_waiting, {}))
        append(m_names->m_list, name);
    m_names->m_isHeld = false;
    m_names->m_mutex.unlock();
}
