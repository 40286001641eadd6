#include "MemoryPeak.h"
#include "PlainCamera.h"
#include "Row.h"
#include "Screen.h"
#include "imageformat/ImageFormatWidget.h"
#include "imageformat/ImageReaderWidget.h"

#include <QApplication>
#include <QLabel>
#include <QTabWidget>

#include <stdexcept>

// A new background for the region pages, of which one is visible.

namespace {

constexpr QSize megapixels20(5120, 3840);
constexpr QSize megapixels150(14204, 10652);
constexpr QSize windowSize(1200, 1000);

/// The page with its region pages, on a window.
class Page
{
public:
    explicit Page(const QSize& picture)
        : m_camera(cameraWith(0, 4, {picture.width(), picture.height()}))
        , m_picture(std::make_shared<QPixmap>(Screen::testPicture(picture)))
        , m_page(new ImageFormatWidget(m_camera.features(), nullptr))
        , m_window(Screen::show(m_page, windowSize))
    {
        if (tabs()->count() < 3)
            throw std::logic_error("the camera has too few region pages");
        choose();
    }

    const QPixmap& picture() const { return *m_picture; }
    QTabWidget* tabs() const { return m_page->findChild<QTabWidget*>(QStringLiteral("tabWidget")); }

    /// What the image source does when the user has chosen a picture.
    void choose()
    {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        for (int page = 1; page < regionPages(); ++page)
            QApplication::setOverrideCursor(Qt::WaitCursor);
        emit m_page->findChild<ImageReaderWidget*>()->imageChanged(m_picture);
        Screen::flush();
    }

    void showTab(int index)
    {
        tabs()->setCurrentIndex(index);
        Screen::flush();
    }

    /// Of the picture on a region page.
    QSize shownSize(int tab) const
    {
        const QWidget* const page = tabs()->widget(tab);
        for (const QLabel* label : page->findChildren<QLabel*>())
            if (label->isVisibleTo(page) && label->pixmap(Qt::ReturnByValue).width() >= 100)
                return label->pixmap(Qt::ReturnByValue).size();
        throw std::logic_error("no page shows the picture");
    }

private:
    int regionPages() const { return tabs()->count(); }

    PlainCamera m_camera;
    std::shared_ptr<QPixmap> m_picture;
    ImageFormatWidget* m_page;
    std::unique_ptr<QWidget> m_window;
};

Work scaling(const std::shared_ptr<Page>& page, int tab)
{
    // A first picture may still change the layout.
    return [page, tab] {
        page->picture().scaled(page->shownSize(tab), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    };
}

void addRows(const std::string& prefix, const QSize& size)
{
    const Sampling sampling{15, 2};
    const std::pair<int, const char*> pages[] = {{0, "region"}, {1, "auto"}, {2, "regions"}};
    for (const auto& [tab, name] : pages) {
        addComparison(prefix + "/visible-" + name, "one QPixmap::scaled", 1.3, sampling,
                      [tab = tab, size]() -> Contest {
                          const auto page = std::make_shared<Page>(size);
                          page->showTab(tab);
                          return {[page] { page->choose(); }, scaling(page, tab)};
                      });
        addComparison(prefix + "/turned-to-" + name, "one QPixmap::scaled", std::nullopt, sampling,
                      [tab = tab, size]() -> Contest {
                          const auto page = std::make_shared<Page>(size);
                          page->showTab(tab);
                          const Work reference = scaling(page, tab);
                          return {[page, tab] { page->showTab(tab); },
                                  reference,
                                  {},
                                  [page, tab] {
                                      page->showTab(tab == 0 ? 1 : 0);
                                      page->choose();
                                  }};
                      });
    }
    addMeasurement(prefix + "/memory", "copies of the picture at the peak", 1.0, [=] {
        Page page(size);
        const MemoryPeak peak;
        page.choose();
        for (int tab = 0; tab < page.tabs()->count(); ++tab)
            page.showTab(tab);
        const double copy = 4.0 * size.width() * size.height();
        return Measurement{static_cast<double>(peak.growth()) / copy};
    });
}

} // namespace

void addBackgroundRows()
{
    addRows("background/20MP", megapixels20);
    addRows("background/150MP", megapixels150);
}
