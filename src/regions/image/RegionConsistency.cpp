#include "regions/image/RegionConsistency.h"

#include <QCoreApplication>

QString regionProblems(const AxisSpan& horizontal, double maximumWidth, const AxisSpan& vertical,
                       double maximumHeight)
{
    QString problems;
    if (horizontal.size + horizontal.offset > maximumWidth)
        problems
            += QCoreApplication::translate("AOIWidget", "\n\tOffsetX + Width > Maximum Width! ");
    if (vertical.size + vertical.offset > maximumHeight)
        problems
            += QCoreApplication::translate("AOIWidget", "\n\tOffsetY + Height > Maximum Height! ");
    return problems;
}
