#include "regions/automatic/DspRegion.h"

#include "features/NumberConversion.h"

#include <QCoreApplication>

#include <algorithm>

bool isValidDspRegion(const DspEdges& edges, const RegionLimits& limits)
{
    const auto width = static_cast<double>(limits.width);
    const auto height = static_cast<double>(limits.height);
    return edges.top < edges.bottom && edges.top < height && edges.bottom <= height
        && edges.left < edges.right && edges.left < width && edges.right <= width;
}

bool writesFarEdgeFirst(double currentNear, double currentFar, double newNear, double newFar)
{
    return currentNear < newNear && currentFar < newFar;
}

QString dspRegionProblems(const DspEdges& edges, const RegionLimits& limits)
{
    const auto width = static_cast<double>(limits.width);
    const auto height = static_cast<double>(limits.height);
    QString problems;
    if (edges.top > edges.bottom)
        problems += QCoreApplication::translate("AutoROIWidget", "\nTop > Bottom! ");
    if (edges.top > height)
        problems += QCoreApplication::translate("AutoROIWidget", "\nTop > ROI Height! ");
    if (edges.bottom > height)
        problems += QCoreApplication::translate("AutoROIWidget", "\nBottom > ROI Height! ");
    if (edges.left > edges.right)
        problems += QCoreApplication::translate("AutoROIWidget", "Left > Right! ");
    if (edges.left > width)
        problems += QCoreApplication::translate("AutoROIWidget", "Left > ROI Width! ");
    if (edges.right > width)
        problems += QCoreApplication::translate("AutoROIWidget", "Right > ROI Width! ");
    return problems;
}

SensorRegion drawnDspRegion(const DspEdges& edges, const RegionLimits& limits)
{
    const auto width = static_cast<double>(limits.width);
    const auto height = static_cast<double>(limits.height);
    const double bottom = std::min(edges.bottom, height);
    const double right = std::min(edges.right, width);
    const double top = std::min({edges.top, height, bottom});
    const double left = std::min({edges.left, width, right});
    return {toInt(top), toInt(left), toInt(right - left), toInt(bottom - top)};
}
