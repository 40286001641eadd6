#include "LogPane.h"

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextCursor>
#include <QTime>
#include <QVBoxLayout>

namespace {

constexpr int keptLines = 5000;

QString categoryName(ZebViewerLogCategory category)
{
    switch (category) {
    case ZebViewerLogGeneral:
        return LogPane::tr("General");
    case ZebViewerLogFeatureAccess:
        return LogPane::tr("Feature access");
    case ZebViewerLogMultiRegion:
        return LogPane::tr("Multi-region");
    }
    return LogPane::tr("Category %1").arg(static_cast<int>(category));
}

} // namespace

LogPane::LogPane(QWidget* parent)
    : QWidget(parent)
    , m_text(new QPlainTextEdit(this))
{
    m_text->setObjectName(QStringLiteral("logText"));
    m_text->setAccessibleName(tr("Log"));
    m_text->setReadOnly(true);
    m_text->setMaximumBlockCount(keptLines);
    m_text->setPlaceholderText(tr("Messages of the pages appear here."));
    m_text->setMinimumHeight(4 * fontMetrics().lineSpacing());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
}

void LogPane::append(ZebViewerLogCategory category, const QString& text)
{
    QScrollBar* bar = m_text->verticalScrollBar();
    const bool following = bar->value() == bar->maximum();

    QTextCharFormat heading;
    heading.setForeground(palette().color(QPalette::PlaceholderText));
    QTextCursor cursor(m_text->document());
    cursor.movePosition(QTextCursor::End);
    if (!m_text->document()->isEmpty())
        cursor.insertBlock();
    cursor.insertText(
        QStringLiteral("%1  %2  ")
            .arg(QTime::currentTime().toString(QStringLiteral("HH:mm:ss")), categoryName(category)),
        heading);
    cursor.insertText(text, QTextCharFormat());

    if (following)
        bar->setValue(bar->maximum());
}
