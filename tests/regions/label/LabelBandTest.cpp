#include "DataTable.h"
#include "Pictures.h"
#include "TestEvents.h"
#include "regions/label/RubberBandLabel.h"

#include <QApplication>
#include <QPainter>
#include <QRandomGenerator>
#include <QRubberBand>
#include <QScreen>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOption>

#include <memory>

namespace {

constexpr QSize sensor(2000, 1500);

QPixmap noise(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    auto* const pixels = reinterpret_cast<QRgb*>(image.bits());
    QRandomGenerator::global()->fillRange(pixels, size.width() * size.height());
    return QPixmap::fromImage(image);
}

std::unique_ptr<RubberBandLabel> shownLabel()
{
    auto label = std::make_unique<RubberBandLabel>(sensor.width(), sensor.height(),
                                                   QColor(0, 100, 255), nullptr);
    label->resize(400, 300);
    label->setRegion(300, 400, 1000, 700);
    label->show();
    label->showBackground(std::make_shared<QPixmap>(noise({400, 300})), sensor, {});
    QCoreApplication::processEvents();
    return label;
}

/// What has reached the window so far, in the label's place.
QImage windowOf(const QWidget& label)
{
    return QGuiApplication::primaryScreen()->grabWindow(label.winId()).toImage();
}

} // namespace

class LabelBandTest : public QObject
{
    Q_OBJECT

private slots:
    void looksAsTheStyleDrawsIt_data()
    {
        const DataTable row([](const QString& style) {
            QApplication::setStyle(style);
            for (const QSize& size : {QSize(150, 90), QSize(2, 40), QSize(30, 1)}) {
                const auto label = shownLabel();
                auto* band = label->findChild<QRubberBand*>();
                band->setGeometry(QRect(QPoint(40, 50), size));
                const QImage shown = label->grab().toImage();

                QImage expected = label->pixmap(Qt::ReturnByValue).toImage();
                QStyleOptionRubberBand option;
                option.initFrom(band);
                option.shape = QRubberBand::Rectangle;
                option.opaque = true;
                QPainter painter(&expected);
                painter.translate(band->pos());
                if (!band->mask().isEmpty())
                    painter.setClipRegion(band->mask());
                band->style()->drawControl(QStyle::CE_RubberBand, &option, &painter, band);
                painter.end();
                // In one layer instead of several, each of which would round.
                QVERIFY(largestDifference(shown, expected) <= 2);
            }
        });
        for (const QString& style : QStyleFactory::keys())
            row(style.toUtf8(), style);
    }

    void looksAsTheStyleDrawsIt() { runRow(); }

    void updatesAllThatChanges()
    {
        const auto label = shownLabel();
        auto* band = label->findChild<QRubberBand*>();
        QPalette palette;
        palette.setBrush(QPalette::Highlight, QColor(255, 0, 0, 80));
        QVector<std::function<void()>> changes{[] {}};
        for (const QRect& next :
             {QRect(90, 65, 200, 140), QRect(60, 50, 120, 100), QRect(70, 60, 0, 0),
              QRect(70, 60, 2, 40), QRect(30, 20, 350, 250), QRect(50, 50, 100, 100)})
            changes << [band, next] { band->setGeometry(next); };
        changes << [&] { band->setPalette(palette); } << [&] { band->hide(); }
                << [&] { band->show(); } << [&] { label->setEnabled(false); }
                << [&] { label->setEnabled(true); };
        QImage before;
        for (const auto& change : changes) {
            change();
            QTRY_COMPARE(largestDifference(windowOf(*label), label->grab().toImage()), 0);
            const QImage now = label->grab().toImage();
            QVERIFY(now != std::exchange(before, now));
        }
    }
};

QTEST_MAIN(LabelBandTest)
#include "LabelBandTest.moc"
