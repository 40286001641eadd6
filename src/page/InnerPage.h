#pragma once

#include "page/BaseTabPluginWidget.h"

class QTimer;

struct Changes
{
    bool all = false;
    QStringList names;

    bool isEmpty() const { return !all && names.isEmpty(); }
    bool any(const QStringList& candidates) const;
};

/// Base of the three region pages: what is to be read, after notifications and after what the page
/// itself did, waits until the user is not at work and the camera has told it.
class InnerPage : public BaseTabPluginWidget
{
    Q_OBJECT

public:
    InnerPage(const FeatureList& camera, QWidget* parent);
    ~InnerPage() override { disconnectChildren(); }

    /// A wrapped warning must not make all that is around the page as high as it would like to be.
    bool hasHeightForWidth() const override { return false; }

protected:
    /// Whether the user drags, edits or is asked; nothing is read meanwhile.
    virtual bool isAtWork() const = 0;

    /// Shows what the camera holds of @p changes, with every tick, also without any. Answers what
    /// has to be read once more, because it was not told or a field is being typed in.
    virtual QStringList refresh(const Changes& changes) = 0;

    // Cameras need not notify of what the page itself did: with the next refresh, as readAgain(),
    void readAllNext() { m_readsAll = true; }
    // and in 200 ms:
    void readSoon(const QStringList& names);
    void readAllSoon();

    void guardFieldsAgainstWheel();
    /// For destructors: a page that is deleted while it is visible is hidden later, when its parts
    /// are gone. A drag then ends, an editor closes, and a field gives up what was typed.
    void disconnectChildren();

    bool isRefreshing() const { return m_isRefreshing; }

    void onPaletteChanged(QEvent*) override { }
    void refreshFeatures() final;
    void showEvent(QShowEvent* event) override;

private:
    bool m_readsAll = true;
    QTimer* m_soonTimer;
    bool m_isRefreshing = false;
};
