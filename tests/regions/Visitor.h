#pragma once

#include "regions/RegionPage.h"

#include <random>

/// What a person or another client does next with a page, and what holds afterwards.
template <typename Page> class Visitor
{
public:
    /// Left or top, and so on, with the feature behind each.
    using Fields = QVector<QPair<QString, QString>>;

    Visitor(RegionPage<Page>& page, const Fields& fields)
        : m_page(page)
        , m_fields(fields)
    {
    }
    virtual ~Visitor() = default;
    Visitor(const Visitor&) = delete;
    Visitor& operator=(const Visitor&) = delete;

    /// Whether a strict camera has to take all that the page writes.
    virtual bool act()
    {
        switch (below(12)) {
        case 0:
            preset(below(3));
            break;
        case 1:
        case 2: {
            const int which = below(4);
            QDoubleSpinBox* const field = m_page.field(m_fields[which].first);
            return type(which, *field, below(int(field->maximum()) + 1));
        }
        case 3:
            writeAsOther(m_fields[below(4)].second, std::int64_t{4} * below(500));
            break;
        case 4:
            changeImage();
            break;
        case 5:
            m_page.comeBack();
            break;
        case 6:
            resize();
            break;
        default:
            dragSomewhere();
        }
        return true;
    }

    virtual void compareWritten() const { }

    virtual void compare() const
    {
        for (const auto& [field, feature] : m_fields)
            QCOMPARE(int(m_page.field(field)->value()), m_page.value(feature));
        QCOMPARE(text(m_page.label->region()), text(drawn()));
    }

protected:
    virtual void preset(int which)
    {
        static const char* const buttons[]{"btnFull", "btnHalf", "btnQuarter"};
        m_page.click(buttons[which]);
    }
    virtual bool type(int, QDoubleSpinBox& field, int value)
    {
        field.setValue(value);
        return true;
    }
    virtual void changeImage() = 0;
    virtual void drop(const QPoint& pointer) { release(m_page.label, pointer); }
    /// The region on the label, by what the camera has.
    virtual SensorRegion drawn() const = 0;

    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

    /// Of a camera that tells nothing, the page shows changes when it comes back.
    void writeAsOther(const QString& feature, std::int64_t value)
    {
        m_page.camera->writeAsOtherClient(feature.toStdString(), value);
        if (m_page.isSilent())
            m_page.comeBack();
    }

    RegionPage<Page>& m_page;
    const Fields m_fields;

private:
    QVector<double> shown() const
    {
        QVector<double> values;
        for (const auto& field : m_fields)
            values << m_page.field(field.first)->value();
        return values;
    }

    void resize() { m_page.resize(460 + below(100), 400 + below(400)); }

    /// By any edge, corner or the inside; while the page's size changes now and then. Nothing is
    /// written before the end, and nothing moves by itself.
    void dragSomewhere()
    {
        m_page.resize(m_page.page->width(), m_page.page->height()); // comes to rest
        const QRect band = m_page.band();
        const int xs[]{band.left() + 1, band.center().x(), band.right() - 2};
        const int ys[]{band.top() + 1, band.center().y(), band.bottom() - 2};
        press(m_page.label, {xs[below(3)], ys[below(3)]});
        const QStringList writes = m_page.writes();
        QPoint pointer;
        for (int i = 0; i < 3; ++i) {
            if (below(20) == 0)
                resize();
            const QSize size = m_page.label->size();
            pointer = {below(size.width() + 60) - 30, below(size.height() + 60) - 30};
            sendMouse(m_page.label, QEvent::MouseMove, pointer);
            const QVector<double> before = shown();
            m_page.settle();
            QCOMPARE(shown(), before);
            QCOMPARE(m_page.label->size(), size);
        }
        QCOMPARE(m_page.writes(), writes);
        drop(pointer);
    }

    std::mt19937 m_random{7};
};

/// Lets the visitor act until something no longer holds.
template <typename Page> void visit(const RegionPage<Page>& page, Visitor<Page>& visitor, int times)
{
    for (int i = 0; i < times && !QTest::currentTestFailed(); ++i) {
        page.camera->journal().clear();
        const bool takesAll = visitor.act();
        QVERIFY2(!takesAll || !page.anyRefused(), qPrintable(page.writes().join(", ")));
        visitor.compareWritten();
        page.settle();
        visitor.compare();
    }
}
