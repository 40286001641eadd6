#include "featuretable/editors/DelegateWidgetFactory.h"

#include "featuretable/editors/BooleanEditor.h"
#include "featuretable/editors/CommandEditor.h"
#include "featuretable/editors/EnumerationEditor.h"
#include "featuretable/editors/FloatEditor.h"
#include "featuretable/editors/IntegerEditor.h"
#include "featuretable/editors/TextEditor.h"
#include "featuretable/record/IntegerNotation.h"

DelegateWidget* createDelegateWidget(const FeatureInfo& info, QWidget* parent)
{
    if (!info.writable || info.isRaw)
        return nullptr;
    if (info.isCommand)
        return new CommandEditor(info, parent);
    if (!info.enumEntries.empty())
        return new EnumerationEditor(info, parent);
    if (std::holds_alternative<bool>(info.value))
        return new BooleanEditor(info, parent);
    if (std::holds_alternative<double>(info.value))
        return new FloatEditor(info, parent);
    if (std::holds_alternative<std::string>(info.value))
        return new TextEditor(info, nullptr, parent);
    if (const IntegerNotation* notation = notationFor(info))
        return new TextEditor(info, notation, parent);
    return createIntegerEditor(info, parent);
}
