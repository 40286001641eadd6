#include "CameraPage.h"
#include "DataTable.h"
#include "TestEvents.h"
#include "featuretable/editors/DelegateWidget.h"
#include "imageformat/ImageFormatWidget.h"
#include "multiregion/label/MultiRubberBandLabel.h"
#include "regions/AOIWidget.h"
#include "regions/label/RubberBandLabel.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QTableWidget>

#include <cmath>

namespace {

void setTheme(bool isDark)
{
    const QPalette dark(QColor(58, 61, 66), QColor(45, 47, 51));
    QApplication::setPalette(isDark ? dark : QApplication::style()->standardPalette());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto luminance = [](const QColor& color) {
        const auto linear = [](double part) {
            return part <= 0.04 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
            + 0.0722 * linear(color.blueF());
    };
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

/// What stands out most in a picture, against the colour that most of it has.
double contrastIn(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    const auto most = std::max_element(counts.begin(), counts.end());
    double result = 1.0;
    for (auto color = counts.begin(); color != counts.end(); ++color)
        result = std::max(result, contrast(color.key(), most.key()));
    return result;
}

bool isControl(const QWidget* widget)
{
    return qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QComboBox*>(widget)
        || qobject_cast<const QCheckBox*>(widget) || qobject_cast<const QPushButton*>(widget);
}

/// A page as large as it is in a window of 1400 x 900, with a tab open.
struct Page : CameraPage<ImageFormatWidget>
{
    explicit Page(int tab, bool isDark = false, bool isMadeDark = false,
                  const char* model = "current")
        : CameraPage(model, [=](sim::Camera&) { setTheme(isMadeDark); })
    {
        setTheme(isDark);
        page->resize(800, 800);
        page->show();
        tabs = find<QTabWidget>("tabWidget");
        tabs->setCurrentIndex(tab);
        settle();
    }
    ~Page() { setTheme(false); }

    /// The label's height follows its width one by one, and its band 200 ms after the last.
    void settle() const
    {
        static_cast<BaseTabPluginWidget*>(tabs->currentWidget())->updateTimer();
        for (int i = 0; i < 5; ++i) {
            QTest::qWait(1);
            for (auto* label : page->findChildren<RubberBandLabel*>())
                label->UpdateGeometryAfterResize();
        }
    }
    template <typename T = QWidget> QVector<T*> all(const char* name = nullptr) const
    {
        QVector<T*> result;
        for (T* widget : page->findChildren<T*>(name))
            if (widget->isVisible())
                result << widget;
        return result;
    }
    template <typename T = QWidget> T* find(const char* name = nullptr) const
    {
        return all<T>(name).value(0);
    }
    QRect place(const QWidget* widget) const
    {
        return {widget->mapTo(page.get(), QPoint()), widget->size()};
    }
    QRect place(const char* name) const { return place(find(name)); }
    QImage picture() const { return page->grab().toImage(); }

    /// How well the left border of a field, a button or a check box's square stands out.
    double outline(const QImage& image, const QWidget* control) const
    {
        QStyleOptionButton option;
        option.initFrom(control);
        const bool isBox = qobject_cast<const QCheckBox*>(control);
        const QRect box = control->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option);
        const QRect border = (isBox ? box : control->rect()).translated(place(control).topLeft());
        const auto at
            = [&](int x) { return image.pixelColor(border.left() + x, border.center().y()); };
        return std::max(
            {contrast(at(0), at(-2)), contrast(at(1), at(-2)), contrast(at(2), at(-2))});
    }

    QTabWidget* tabs = nullptr;
};

} // namespace

class PageFormTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create("Fusion")); }

    void showsAllOfATab_data()
    {
        const DataTable table([](const char* model, int tab, bool isMultiple) {
            const Page p(tab, false, false, model);
            if (isMultiple) {
                p.page->resize(800, 620);
                p.camera->writeAsOtherClient("MultipleRegionEnable", true);
                p.settle();
            }
            for (const QScrollBar* bar : p.all<QScrollBar>())
                QCOMPARE(bar->parent()->parent()->objectName(), QString("tblFeatures"));
            for (const QWidget* widget : p.all())
                QVERIFY2(!isControl(widget)
                             || widget->size().expandedTo(widget->minimumSizeHint())
                                 == widget->size(),
                         qPrintable(widget->objectName()));
            const auto* picture = p.find<SensorLabel>();
            QVERIFY(isMultiple || picture->shownSize().height() >= (tab == 0 ? 300 : 100));
            if (const auto* rows = p.find<QTableWidget>("tblFeatures"))
                QVERIFY(rows->rowViewportPosition(3) + rows->rowHeight(3)
                        <= rows->viewport()->height());
        });
        for (const char* model : {"current", "dsp", "automode-fixed", "mixed-aoi-dsp"})
            for (const int tab : {0, 1})
                table(QByteArray(model) + char('0' + tab), model, tab, false);
        table("multiple regions", "current", 2, false);
        table("multiple regions are on", "current", 0, true);
    }
    void showsAllOfATab() { runRow(); }

    void keepsFieldsInLineAndInPlace()
    {
        const Page p(0);
        const QVector<QRect> before{p.place("spinLeft"), p.place("spinTop"), p.place("spinWidth")};
        const QVector<QRect> presets{p.place("btnFull"), p.place("btnHalf"), p.place("btnQuarter")};
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(before[i].left(), before[0].left());
            QCOMPARE(presets[i].top(), before[i].top());
        }
        auto* region = p.find<AOIWidget>();
        region->OnRubberLabelClicked();
        region->OnUpdateGeometry(8, 8, 2592, 1944);
        QCoreApplication::sendPostedEvents();
        const auto* message = p.find<QLabel>("labelInvalidSettings");
        QVERIFY(message && message->height() >= message->sizeHint().height());
        QCOMPARE((QVector<QRect>{p.place("spinLeft"), p.place("spinTop"), p.place("spinWidth")}),
                 before);
    }

    /// Also when the theme has changed before the page was shown, or while it was.
    void canBeReadAndSeen_data()
    {
        const DataTable table([](int tab, bool isDark, bool isBinned) {
            const QImage fresh = Page(tab, isDark, isDark).picture();
            QCOMPARE(Page(tab, isDark, !isDark).picture(), fresh);
            const Page p(tab, !isDark);
            setTheme(isDark);
            p.settle();
            QCOMPARE(p.picture(), fresh);
            p.camera->writeAsOtherClient("BinningHorizontal", std::int64_t{isBinned ? 2 : 1});
            p.settle();
            if (auto* message = p.tabs->currentWidget()->findChild<QLabel*>("labelInvalidSettings"))
                message->show();
            QCoreApplication::sendPostedEvents();
            const QImage picture = p.picture();
            for (const QWidget* widget : p.all()) {
                const auto* label = qobject_cast<const QLabel*>(widget);
                const auto* group = qobject_cast<const QGroupBox*>(widget);
                const bool hasText = (label && !label->text().isEmpty())
                    || (group && !group->title().isEmpty()) || isControl(widget);
                if (!hasText || !widget->isEnabled())
                    continue;
                const QRect text
                    = p.place(widget).adjusted(2, 2, -2, group ? 20 - group->height() : -2);
                QVERIFY2(contrastIn(picture.copy(text)) >= 4.5, qPrintable(widget->objectName()));
                QVERIFY2(!isControl(widget) || p.outline(picture, widget) >= 3.0,
                         qPrintable(widget->objectName()));
            }
            auto* box = p.find<QCheckBox>("chkReverseX");
            const double enabled = p.outline(picture, box);
            box->setEnabled(false);
            QVERIFY(p.outline(p.picture(), box) < 0.7 * enabled);
        });
        for (const bool isDark : {false, true}) {
            for (const int tab : {0, 1, 2})
                table(QByteArray(isDark ? "dark " : "light ") + char('0' + tab), tab, isDark,
                      false);
            table(isDark ? "dark warning" : "light warning", 2, isDark, true);
        }
    }
    void canBeReadAndSeen() { runRow(); }

    void isWalkedByTabAndNamed_data()
    {
        const DataTable table([](int tab, const char* controls) {
            const Page p(tab);
            p.page->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(p.page.get()));
            p.find("btnImageFormat")->setFocus();
            QStringList walked;
            do {
                QWidget* control = QApplication::focusWidget();
                auto* spoken = QAccessible::queryAccessibleInterface(control);
                QVERIFY2(!spoken->text(QAccessible::Name).isEmpty(),
                         qPrintable(control->objectName()));
                const auto labels = spoken->relations(QAccessible::Label);
                QVERIFY2(!isControl(control) || qobject_cast<QAbstractButton*>(control)
                             || qobject_cast<QLabel*>(labels.value(0).first->object()),
                         qPrintable(control->objectName()));
                if (!qobject_cast<BaseTabPluginWidget*>(control))
                    walked << control->objectName();
                QTest::keyClick(control, Qt::Key_Tab);
            } while (QApplication::focusWidget() != p.find("btnImageFormat") && walked.size() < 40);
            QCOMPARE(walked.join(' '),
                     "btnImageFormat cmbPixelFormat cmbBinningSelector cmbBinningHorizontalMode "
                     "spbBinningHorizontal cmbBinningVerticalMode spbBinningVertical chkReverseX "
                     "chkReverseY imageReaderWidget qt_tabwidget_tabbar "
                         + QString(controls));
        });
        table("region", 0, "spinLeft spinTop spinWidth spinHeight btnFull btnHalf btnQuarter");
        table("automatic", 1,
              "comboIntensityControllerRegion cbEnable cbShowArea spinLeft spinTop spinWidth "
              "spinHeight btnFull btnHalf btnQuarter spinExpAutoMin btnExpAutoMinCurrent "
              "comboExpAutoTimeBase spinExpAutoMax btnExpAutoMaxCurrent");
        table("multiple", 2,
              "chkMultipleRegionEnable cmbMultipleRegionArrangement btnLoadDefaults "
              "qt_tabwidget_tabbar btnRegion0 btnRegion1 tblFeatures");
    }
    void isWalkedByTabAndNamed() { runRow(); }

    void isEditedByKeys()
    {
        const Page p(2);
        auto* cells = p.find<QTableWidget>("tblFeatures");
        cells->setCurrentItem(cells->findItems("SubRegionHeight", Qt::MatchExactly).value(0));
        for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}) {
            QTest::keyClick(cells, key);
            const QPointer<DelegateWidget> editor = p.find<DelegateWidget>();
            QVERIFY(editor);
            QTest::keyClick(editor->focusWidget(), Qt::Key_Escape);
            QTRY_VERIFY(!editor);
        }
        QTest::keyClick(p.find("btnRegion1"), Qt::Key_Space);
        QVERIFY(p.find<MultiRubberBandLabel>()->isRegionShown(1));
    }

    void saysWhereRegionsAre_data()
    {
        const DataTable table([](int tab, const char* before, const char* after) {
            const Page p(tab);
            QWidget* picture = p.find<SensorLabel>();
            const auto* band = picture->findChild<QRubberBand*>();
            const QPoint corner = band->geometry().bottomRight() - QPoint(2, 2);
            press(picture, corner);
            sendMouse(picture, QEvent::MouseMove, corner - QPoint(40, 40));
            QCOMPARE(picture->accessibleDescription(), QString(before));
            release(picture, corner - QPoint(40, 40));
            QVERIFY(QRegularExpression(after).match(picture->accessibleDescription()).hasMatch());
            QCOMPARE(band->accessibleDescription(), picture->accessibleDescription());
        });
        table("region", 0, "AOI (0, 0) 2592 x 1944", "^AOI .0, 0. 2[0-4]\\d\\d x 1\\d{3}$");
        table("automatic", 1, "Autofunction AOI (648, 486) 1296 x 972",
              "^Autofunction AOI .648, 486. \\d{3} x \\d{3}$");
        table("multiple", 2, "Region0 (0, 0) 2592 x 484", "^Region0 .0, 0. 2\\d{3} x 1\\d\\d$");
    }
    void saysWhereRegionsAre() { runRow(); }
};

QTEST_MAIN(PageFormTest)
#include "PageFormTest.moc"
