#include "genicam/Frame.h"
#include "DataTable.h"

#include <QtTest>

class FrameTest : public QObject
{
    Q_OBJECT

private slots:
    void decodes_data()
    {
        const DataTable row([](quint32 format, const char* hex, const QByteArray& pixels) {
            const QByteArray sent = QByteArray::fromHex(hex);
            const bool isMosaic = format == 0x01080009 || format == 0x0110010a;
            const auto decode = [&](int size) {
                const auto* const data = reinterpret_cast<const std::uint8_t*>(sent.constData());
                return genicam::decodeFrame(data, std::size_t(size), 2, isMosaic ? 2 : 1, format);
            };
            const genicam::Frame frame = decode(sent.size());
            QCOMPARE(frame.isColour, isMosaic || format >> 24 == 2);
            QCOMPARE(QByteArray(reinterpret_cast<const char*>(frame.pixels.data()),
                                int(frame.pixels.size()))
                         .toHex(),
                     pixels);
            QVERIFY(decode(sent.size() - 1).pixels.empty());
        });
        row("Mono8", 0x01080001, "1234", "1234");
        row("Mono10", 0x01100003, "ff030001", "ff40");
        row("Mono16", 0x01100007, "34127856", "1256");
        row("Mono12Packed", 0x010c0006, "12ff34", "1234");
        row("Mono10p", 0x010a0046, "fd0708", "ff80");
        row("Mono12p", 0x010c0047, "30f2ab", "23ab");
        row("BayerRG8", 0x01080009, "10203040", "102040102040103040103040");
        row("BayerRG14", 0x0110010a, "0004000800120010", "102040102040104840104840");
        row("RGB8", 0x02180014, "010203040506", "010203040506");
        row("BGR8", 0x02180015, "010203040506", "030201060504");
        row("YUV422", 0x0210001f, "80108020", "101010202020");
        row("YUYV", 0x02100032, "10802080", "101010202020");
        row("unknown", 0x010800ff, "1234", "");
    }
    void decodes() { runRow(); }
};

QTEST_GUILESS_MAIN(FrameTest)
#include "FrameTest.moc"
