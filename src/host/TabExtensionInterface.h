#pragma once

#include "ZebViewerLogCategory.h" // beside this header, wherever a viewer keeps the two

#include <ZebCPP/ZebCPP.h>

#include <QMap>
#include <QMetaType>
#include <QObject>
#include <QPixmap>
#include <QSharedPointer>
#include <QString>
#include <QVariant>
#include <QVector>
#include <QtPlugin>

#include <memory>

class QWidget;

Q_DECLARE_METATYPE(std::shared_ptr<QPixmap>)

/// The viewer's interface to the root object of a tab extension plug-in.
///
/// Without Q_OBJECT, so that neither viewer nor plug-in has to compile a meta-object for it.
class TabExtensionInterface : public QObject
{
public:
    /// All features of one opened camera, in the camera's order.
    using FeatureList = QSharedPointer<QVector<ZebCPP::FeaturePtr>>;

    /// Fills @p page, an empty widget of the viewer, with the plug-in's page for one camera.
    ///
    /// @p connections names members of the page's parent object, each a SIGNAL() or SLOT() text,
    /// and may be null; a missing key leaves its connection out. The keys are
    ///   "connectWidgetToSignal"   signal (bool): the camera streams or stops
    ///   "connectLoggingSlot"      slot (ZebViewerLogCategory, const QString&)
    ///   "connectSendFrameSignal"  signal (const QPixmap&): a frame
    ///   "connectRequestFrameSlot" slot (): a frame is wanted
    ///
    /// Returns 0, or the reason why the page stays empty: 4 when the camera is not supported.
    /// Exceptions that are not of the plug-in's own pass through.
    virtual qint32 createTab(const FeatureList& features, QWidget* page,
                             const QMap<QString, QVariant>* connections)
        = 0;

    /// Whether one page may serve several cameras. The argument is the viewer's and is ignored.
    virtual bool isTabShareable(const QVariant& context) = 0;

    /// Whether the page needs the camera for itself. The argument is the viewer's and is ignored.
    virtual bool isTabExclusive(const QVariant& context) = 0;
};

#define TabExtensionInterface_iid "com.brontax.ZebViewer.Plugin.TabExtensionInterface/1.0"

Q_DECLARE_INTERFACE(TabExtensionInterface, TabExtensionInterface_iid)
