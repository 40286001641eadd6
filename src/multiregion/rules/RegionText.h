#pragma once

#include <QCoreApplication>

/// Texts of the page of multiple regions.
struct RegionText
{
    Q_DECLARE_TR_FUNCTIONS(MultiROIWidget)
};
