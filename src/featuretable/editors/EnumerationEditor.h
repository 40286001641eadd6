#pragma once

#include "featuretable/editors/DelegateWidget.h"

class QComboBox;

/// One chosen from the open list is final; keys and wheel walk through the closed one until Return.
class EnumerationEditor : public DelegateWidget
{
    Q_OBJECT

public:
    EnumerationEditor(const FeatureInfo& info, QWidget* parent);

protected:
    bool showValue(const QVariant& value) override;
    QVariant enteredValue() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void onActivated();

    QComboBox* m_box;
    bool m_isStepping = false;
};
