#include "featuretable/editors/DelegateWidgetFactory.h"

#include "featuretable/editors/BooleanEditor.h"
#include "featuretable/editors/CommandEditor.h"
#include "featuretable/editors/EnumerationEditor.h"
#include "featuretable/editors/FloatEditor.h"
#include "featuretable/editors/IntegerEditor.h"
#include "featuretable/editors/IntegerTextEditor.h"
#include "featuretable/editors/StringEditor.h"
#include "featuretable/record/IntegerNotation.h"

namespace {

struct EditorKind
{
    bool (*fits)(const FeatureInfo& info);
    DelegateWidget* (*create)(const FeatureInfo& info, QWidget* parent);
};

const IntegerNotation* notationOf(const FeatureInfo& info)
{
    return notationFor(info, toInteger(info.value).value_or(0));
}

template <typename Type> bool holds(const FeatureInfo& info)
{
    return std::holds_alternative<Type>(info.value);
}

template <typename Editor> DelegateWidget* create(const FeatureInfo& info, QWidget* parent)
{
    return new Editor(info, parent);
}

DelegateWidget* createNotationEditor(const FeatureInfo& info, QWidget* parent)
{
    return new IntegerTextEditor(info, *notationOf(info), parent);
}

bool isCommand(const FeatureInfo& info)
{
    return info.isCommand;
}

bool isEnumeration(const FeatureInfo& info)
{
    return !info.enumEntries.empty();
}

bool hasNotation(const FeatureInfo& info)
{
    return holds<std::int64_t>(info) && notationOf(info);
}

// The first kind that fits is taken.
constexpr EditorKind editorKinds[] = {
    {isCommand, create<CommandEditor>},         {isEnumeration, create<EnumerationEditor>},
    {holds<bool>, create<BooleanEditor>},       {holds<std::string>, create<StringEditor>},
    {holds<double>, create<FloatEditor>},       {hasNotation, createNotationEditor},
    {holds<std::int64_t>, createIntegerEditor},
};

} // namespace

DelegateWidget* createDelegateWidget(const FeatureInfo& info, QWidget* parent)
{
    if (!info.writable || info.isRaw)
        return nullptr;
    for (const EditorKind& kind : editorKinds) {
        if (kind.fits(info))
            return kind.create(info, parent);
    }
    return nullptr;
}
