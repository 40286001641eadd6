#pragma once

#include "imageformat/ImageFormatWidget.h"

#include <QSpinBox>

/// The page with further fields, which it follows like its own.
class PageWithFields : public ImageFormatWidget
{
public:
    PageWithFields(const FeatureList& camera, const QStringList& names)
        : ImageFormatWidget(camera, nullptr)
    {
        observedFeatures += names;
        for (const QString& name : names)
            (new QSpinBox(this))->setObjectName(QStringLiteral("spb") + name);
    }

    /// Every fifth of the features without a meaning is an integer.
    static QStringList integers(int count)
    {
        QStringList names;
        for (int i = 0; i < count; ++i)
            names << QStringLiteral("Custom%1").arg(5 * i);
        return names;
    }
};
