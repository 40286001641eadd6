#include "FeatureWritePane.h"

#include "CameraSession.h"

#include <QComboBox>
#include <QCompleter>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

FeatureWritePane::FeatureWritePane(QWidget* parent)
    : QWidget(parent)
    , m_feature(new QComboBox(this))
    , m_value(new QLineEdit(this))
    , m_write(new QPushButton(tr("&Write"), this))
    , m_result(new QLabel(this))
{
    m_feature->setObjectName(QStringLiteral("outsideFeature"));
    m_value->setObjectName(QStringLiteral("outsideValue"));
    m_write->setObjectName(QStringLiteral("btnOutsideWrite"));
    m_result->setObjectName(QStringLiteral("lblOutsideResult"));
    m_result->setWordWrap(true);
    m_feature->setEditable(true);
    m_feature->setInsertPolicy(QComboBox::NoInsert);
    m_feature->completer()->setCompletionMode(QCompleter::PopupCompletion);
    m_feature->completer()->setFilterMode(Qt::MatchContains);
    m_feature->setMinimumContentsLength(12);
    m_feature->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);

    auto* valueRow = new QHBoxLayout;
    valueRow->addWidget(m_value, 1);
    valueRow->addWidget(m_write);
    auto* layout = new QFormLayout(this);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    layout->addRow(tr("Feat&ure:"), m_feature);
    auto* valueLabel = new QLabel(tr("V&alue:"), this);
    valueLabel->setBuddy(m_value);
    layout->addRow(valueLabel, valueRow);
    layout->addRow(m_result);

    connect(m_feature, &QComboBox::currentTextChanged, this, &FeatureWritePane::showCurrentValue);
    connect(m_write, &QPushButton::clicked, this, &FeatureWritePane::write);
    connect(m_value, &QLineEdit::returnPressed, this, &FeatureWritePane::write);
    setSession(nullptr);
}

void FeatureWritePane::setSession(CameraSession* session)
{
    const QString chosen = m_feature->currentText();
    m_session = session;
    m_result->clear();
    if (session) {
        m_feature->clear();
        m_feature->addItems(session->featureNames());
        m_feature->setCurrentIndex(qMax(0, m_feature->findText(chosen)));
    }
    showCurrentValue();
    setEnabled(session != nullptr);
}

void FeatureWritePane::write()
{
    if (!m_session)
        return;
    const QString name = m_feature->currentText();
    const ZebErrorType code = m_session->camera().writeAsOtherClient(name, m_value->text());
    m_result->setText(code == ZebErrorSuccess
                          ? tr("%1 written.").arg(name)
                          : tr("%1 not written (code %2).").arg(name).arg(static_cast<int>(code)));
    showCurrentValue();
}

void FeatureWritePane::showCurrentValue()
{
    m_value->setPlaceholderText(
        m_session ? m_session->camera().readValueText(m_feature->currentText()) : QString());
}
