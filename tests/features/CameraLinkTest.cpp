#include "features/CameraLink.h"
#include "DataTable.h"
#include "features/SdkValues.h"

namespace {

constexpr std::chrono::milliseconds slow{100};
constexpr std::chrono::milliseconds quick{99};

} // namespace

class CameraLinkTest : public QObject
{
    Q_OBJECT

private slots:
    /// Each word is a feature, read slowly and in vain; "=" before it: with success, "~": refused
    /// at once.
    void countsAsLost_data()
    {
        const DataTable row([](const QString& reads, bool isLost) {
            CameraLink link;
            for (QString name : reads.split(' ', Qt::SkipEmptyParts)) {
                const bool isRead = name.startsWith('=');
                const bool isQuick = name.startsWith('~');
                link.told(name.remove('=').remove('~'), isRead ? Sdk::success : Sdk::notFound,
                          isQuick ? quick : slow);
            }
            QCOMPARE(link.isLost(), isLost);
            QCOMPARE(link.takeLoss(), isLost);
            QVERIFY(!link.takeLoss());
            QVERIFY(!link.isClosed());
            const auto manyReads = link.manyReads();
            QCOMPARE(link.isClosed(), isLost);
        });
        row("nothing read", "", false);
        row("one feature", "A A A", false);
        row("two features", "A A B", true);
        row("an answer between", "A =C B", false);
        row("refused at once", "~A ~B A ~C B", false);
        row("back", "A B =A", false);
        row("back with a refusal", "A B ~A", false);
        row("lost again", "A B =A B A", true);
    }
    void countsAsLost() { runRow(); }
};

QTEST_GUILESS_MAIN(CameraLinkTest)
#include "CameraLinkTest.moc"
