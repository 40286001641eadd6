#include "genicam/Frame.h"
#include "DataTable.h"

#include <QtTest>

class FrameTest : public QObject
{
    Q_OBJECT

private slots:
    void decodes_data()
    {
        const DataTable row([](quint32 format, const QByteArray& sent, const QByteArray& pixels) {
            const bool isColour = format >> 24 == 2 || (format & 0xff) == 9;
            const int width = 2;
            const int height = isColour && format >> 24 == 1 ? 2 : 1;
            const auto* const data = reinterpret_cast<const std::uint8_t*>(sent.constData());
            const genicam::Frame frame
                = genicam::decodeFrame(data, std::size_t(sent.size()), width, height, format);
            QCOMPARE(frame.isColour, isColour);
            QCOMPARE(QByteArray(reinterpret_cast<const char*>(frame.pixels.data()),
                                int(frame.pixels.size()))
                         .toHex(),
                     pixels);
            const auto shorter
                = genicam::decodeFrame(data, std::size_t(sent.size() - 1), width, height, format);
            QVERIFY(shorter.pixels.empty());
        });
        const auto bytes = [](const char* hex) { return QByteArray::fromHex(hex); };
        row("Mono8", 0x01080001, bytes("1234"), "1234");
        row("Mono10", 0x01100003, bytes("ff030001"), "ff40");
        row("Mono12", 0x01100005, bytes("340fff00"), "f30f");
        row("Mono14", 0x01100025, bytes("ff3f4001"), "ff05");
        row("Mono16", 0x01100007, bytes("34127856"), "1256");
        row("Mono10Packed", 0x010c0004, bytes("12ff34"), "1234");
        row("Mono12Packed", 0x010c0006, bytes("12ff34"), "1234");
        row("Mono10p", 0x010a0046, bytes("fd0708"), "ff80");
        row("Mono12p", 0x010c0047, bytes("30f2ab"), "23ab");
        row("BayerRG8", 0x01080009, bytes("10203040"), "102040102040103040103040");
        row("RGB8", 0x02180014, bytes("010203040506"), "010203040506");
        row("BGR8", 0x02180015, bytes("010203040506"), "030201060504");
        row("YUV422", 0x0210001f, bytes("80108020"), "101010202020");
        row("YUYV", 0x02100032, bytes("10802080"), "101010202020");
        row("unknown", 0x010800ff, bytes("1234"), "");
    }
    void decodes() { runRow(); }
};

QTEST_GUILESS_MAIN(FrameTest)
#include "FrameTest.moc"
