#include "widgets/CollapsingButton.h"

#include <QLabel>
#include <QtTest>

#include <memory>

class CollapsingButtonTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_button = new CollapsingButton(m_window.get());
        m_content = new QLabel(m_window.get());
        m_content->resize(100, 80);
    }

    void unfoldsToTheHeightItFound()
    {
        m_button->setContent(m_content);
        QCOMPARE(m_content->maximumHeight(), 0);
        QCOMPARE(m_button->arrowType(), Qt::RightArrow);
        QElapsedTimer time;
        time.start();
        m_button->click();
        QCOMPARE(m_button->arrowType(), Qt::DownArrow);
        QTRY_COMPARE(m_content->maximumHeight(), 90);
        QVERIFY2(time.elapsed() >= 280, "the animation takes 300 ms");
    }

    void foldsFromTheHeightItHasGrownTo()
    {
        m_button->setChecked(true);
        m_button->setContent(m_content);
        QCOMPARE(m_content->maximumHeight(), QWIDGETSIZE_MAX);
        QCOMPARE(m_button->arrowType(), Qt::DownArrow);
        m_content->resize(100, 200);
        m_button->click();
        QCOMPARE(m_content->maximumHeight(), 200);
        QTRY_COMPARE(m_content->maximumHeight(), 0);
        m_button->click();
        QTRY_COMPARE(m_content->maximumHeight(), 200);
    }

    void survivesItsContent()
    {
        m_button->setContent(m_content);
        m_button->click();
        QTest::qWait(50);
        delete m_content;
        QTest::qWait(50);
        m_button->click();
        m_button->click();
        QCOMPARE(m_button->arrowType(), Qt::DownArrow);
    }

private:
    std::unique_ptr<QWidget> m_window;
    CollapsingButton* m_button = nullptr;
    QLabel* m_content = nullptr;
};

QTEST_MAIN(CollapsingButtonTest)
#include "CollapsingButtonTest.moc"
