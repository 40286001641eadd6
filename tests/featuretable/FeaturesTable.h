#pragma once

#include "SimulatedCamera.h"
#include "featuretable/FeaturesTableWidget.h"
#include "featuretable/MyTableWidget.h"
#include "featuretable/editors/DelegateWidget.h"

#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QtTest>
#include <qwt_slider.h>

#include <functional>

constexpr int nameColumn = 0;
constexpr int valueColumn = 1;

inline sim::FeatureDescriptions oneOfEachKind()
{
    const auto integer = [](const char* name, std::int64_t value, std::int64_t maximum) {
        return sim::integerFeature(name, value).between(sim::IntegerRange(0, maximum));
    };
    return {
        integer("Count", 10, 1000).shown("The Count"),
        sim::floatFeature("Gain", 1.0).between(sim::FloatRange(0.0, 24.0)).measuredIn("dB"),
        sim::floatFeature("ExposureTime", 100.0)
            .between(sim::FloatRange(1.0, 10000.0))
            .describedBy("Time that the sensor is exposed."),
        sim::booleanFeature("Flag"),
        sim::stringFeature("Text", "old"),
        sim::enumFeature("ModeSelector", {"First", "Second", "Third"}),
        sim::integerFeature("Register", 0x1C0FFEE00)
            .represented("HexNumber")
            .between(sim::IntegerRange(16, std::int64_t{1} << 40)),
        integer("Address", 1, 0xFFFFFFFF).represented("IPV4Address").selectedBy("ModeSelector"),
        integer("Wide", 5, std::int64_t{1} << 40),
        sim::integerFeature("Unlimited", 5),
        integer("Stale", 2000, 1000),
        sim::integerFeature("Steps", 1)
            .represented("Logarithmic")
            .between(sim::IntegerRange(1, 100000)),
        sim::commandFeature("Run"),
        sim::stringFeature("Model", "fixed").readOnly(),
        sim::rawFeature("Bytes", {1, 2}),
    };
}

/// A window with a table over all features and a field besides.
struct FeaturesTable
{
    FeaturesTable()
        : camera(oneOfEachKind())
        , manager(wrappers(camera))
        , names(manager.GetFeatureNames())
        , window(std::make_unique<QWidget>())
        , outside(new QLineEdit)
        , features(new FeaturesTableWidget(names, &manager, window.get()))
        , table(features->findChild<MyTableWidget*>("tblFeatures"))
    {
        auto* layout = new QVBoxLayout(window.get());
        layout->addWidget(outside);
        layout->addWidget(features);
        window->resize(500, 600);
        window->show();
        QApplication::setActiveWindow(window.get());
        table->setFocus();
        camera.journal().clear();
    }

    QTableWidgetItem* item(const QString& name, int column = valueColumn) const
    {
        return table->item(names.indexOf(name), column);
    }
    QVariant shown(const QString& name) const { return item(name)->data(Qt::DisplayRole); }
    void doubleClick(const QString& name, int column = valueColumn) const
    {
        const QPoint center = table->visualItemRect(item(name, column)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, center);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, center);
    }
    /// The control that has the keyboard.
    QWidget* open(const QString& name) const
    {
        doubleClick(name);
        return QApplication::focusWidget();
    }
    DelegateWidget* editor() const { return table->findChild<DelegateWidget*>(); }
    QwtSlider* slider() const { return editor()->findChild<QwtSlider*>("editorSlider"); }
    QSpinBox* field() const { return editor()->findChild<QSpinBox*>("editorField"); }
    int writes() const { return int(camera.journal().writes().size()); }

    mutable sim::Camera camera;
    FeatureManager manager;
    QStringList names;
    std::unique_ptr<QWidget> window;
    QLineEdit* outside;
    FeaturesTableWidget* features;
    MyTableWidget* table;
};

using Act = std::function<void(FeaturesTable&, QWidget* control)>;

inline Act type(const char* text, Qt::Key end = Qt::Key_Return)
{
    return [=](FeaturesTable&, QWidget* control) {
        QTest::keyClick(control, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(control, Qt::Key_Delete);
        QTest::keyClicks(control, text);
        if (end != Qt::Key_unknown)
            QTest::keyClick(control, end);
    };
}

inline Act keys(const QVector<Qt::Key>& pressed)
{
    return [=](FeaturesTable&, QWidget* control) {
        for (const Qt::Key key : pressed)
            QTest::keyClick(control, key);
    };
}

inline void leave(FeaturesTable& f, QWidget*)
{
    f.outside->setFocus();
}

inline void click(FeaturesTable&, QWidget* control)
{
    QTest::mouseClick(control, Qt::LeftButton, {}, {10, control->height() / 2});
}
