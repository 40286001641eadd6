#include "regions/automatic/AutoRegionMessage.h"

#include "features/FeatureNames.h"
#include "regions/automatic/AutoRegionCamera.h"

#include <QCoreApplication>
#include <QLabel>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(AutoROIWidget)
};

} // namespace

AutoRegionMessage::AutoRegionMessage(const AutoRegionCamera& camera, QLabel* label)
    : m_camera(camera)
    , m_label(label)
{
}

void AutoRegionMessage::showEdges(const AutoRegion& region)
{
    const QString problems = edgeProblems(region, m_camera.limits());
    m_label->setText(Text::tr("Invalid settings: ") + problems);
    m_label->setVisible(!problems.isEmpty());
}

bool AutoRegionMessage::showSizes()
{
    const QString problem = sizeProblem(
        m_camera.region(), m_camera.origin(), m_camera.limits(),
        m_camera.has(FeatureNames::aoiHeight) ? QStringLiteral("AOI") : QStringLiteral("ROI"));
    if (!problem.isEmpty())
        m_label->setText(problem);
    m_label->setVisible(!problem.isEmpty());
    return problem.isEmpty();
}

void AutoRegionMessage::hide()
{
    m_label->hide();
}
