#include "multiregion/ModeWatch.h"
#include "DataTable.h"

#include <QRandomGenerator>

#include <map>

class ModeWatchTest : public QObject
{
    Q_OBJECT

private slots:
    /// A page of four regions is left alone with a camera that repeats itself, late by so many
    /// tenths of a second, when regions are selected. Another client switches a region at any time,
    /// also while the page still looks: it is always found, and then the page rests.
    void findsAndRests_data()
    {
        const DataTable row([](int echoes, int latency, int jitter, int longestWait) {
            for (int run = 0; run < 300; ++run) {
                QRandomGenerator random(static_cast<quint32>(run));
                ModeWatch watch;
                std::map<int, int> reports; ///< by tenths of a second
                const auto report = [&](int time, int count) {
                    for (int i = 0; i < count; ++i)
                        ++reports[time + 1 + latency + (jitter > 0 ? random.bounded(jitter) : 0)];
                };
                const int clickAt = random.bounded(10);
                const int switchAt = clickAt + 1 + random.bounded(60);
                int seenAt = 0;
                int lastLook = 0;
                for (int time = 0; time < 900; ++time) {
                    for (int i = 0; i < reports[time]; ++i)
                        watch.reported();
                    if (time == switchAt)
                        report(time, 2 * echoes + 1); // there, switched and back
                    const bool isClick = time == clickAt;
                    if (!isClick && (time % 10 > 0 || !watch.isLookDue()))
                        continue;
                    watch.lookBegins();
                    for (int region = 0; region < 5; ++region) {
                        watch.selecting(region > 0);
                        report(time, region > 0 ? echoes : 0);
                    }
                    const bool isFound = time >= switchAt && seenAt == 0;
                    watch.looked(isClick || isFound);
                    seenAt = isFound ? time : seenAt;
                    lastLook = time;
                }
                const QString which = QString("run %1").arg(run);
                QVERIFY2(seenAt > 0, qPrintable(which));
                QVERIFY2(seenAt - switchAt <= longestWait, qPrintable(which));
                QVERIFY2(lastLook < 600, qPrintable(which));
            }
        });
        row("no echo", 0, 0, 0, 30);
        row("soon", 1, 1, 0, 40);
        row("a second late", 1, 10, 0, 50);
        row("two echoes, three seconds late", 2, 30, 0, 70);
        row("at random within three seconds", 1, 0, 30, 70);
    }
    void findsAndRests() { runRow(); }
};

QTEST_GUILESS_MAIN(ModeWatchTest)
#include "ModeWatchTest.moc"
