#include "ORV/Buffer.h"
#include "ORV/Swap.h"
#include "ORV/Zlib.h"

#include "TempDir.h"
#include <gtest/gtest.h>

#include <string>

using namespace ORV;

namespace {
Buffer makeBuffer(const std::string& text) {
    Buffer buffer(1);
    buffer.add(text.data(), int(text.size()));
    return buffer;
}

std::string getText(const Buffer& buffer) {
    return buffer.size > 0 ? std::string(reinterpret_cast<char*>(buffer.get()), buffer.size) : "";
}

std::string compress(const std::string& text) {
    Zlib zlib(0);
    std::string out(text.size() + 100, 0);
    zlib.set(text.data(), int(text.size()), out.data(), int(out.size()));
    EXPECT_EQ(zlib.comp(Z_FINISH), Z_STREAM_END);
    out.resize(out.size() - zlib.stream.avail_out);
    return out;
}
} // namespace

TEST(Buffer, CursorMovesWithWhatIsRead) {
    Buffer buffer = makeBuffer("one\ntwo\nthree");
    char bytes[20] = "";
    EXPECT_EQ(buffer.readLine(bytes, 20), 4);
    EXPECT_EQ(std::string(bytes, 4), "one\n");
    EXPECT_EQ(buffer.readLine(bytes, 2), 2) << "cut at the room";
    EXPECT_EQ(buffer.get(0), 'o');
    EXPECT_EQ(buffer.get(-2), 't');
    EXPECT_EQ(buffer.get(100), 0);
    EXPECT_EQ(buffer.skipLine(), 1);
    EXPECT_EQ(buffer.getAvail(), 5);
    EXPECT_EQ(buffer.read(nullptr, 2), 2);
    EXPECT_EQ(buffer.read(bytes, 20), 3);
    EXPECT_EQ(std::string(bytes, 3), "ree");
    EXPECT_EQ(buffer.ind, buffer.size);
    EXPECT_EQ(buffer.read(bytes, 20), 0);
    EXPECT_EQ(buffer.skipLine(), 0);

    EXPECT_EQ(buffer.seek(14), 0);
    EXPECT_EQ(buffer.inc(1), 0);
    EXPECT_EQ(buffer.inc(-5), 1);
    const Buffer copy = buffer;
    EXPECT_EQ(copy.ind, 0);
    EXPECT_EQ(copy.max, buffer.max);
    buffer.clearUsed();
    EXPECT_EQ(getText(buffer), "three");
    EXPECT_EQ(getText(copy), "one\ntwo\nthree");
}

TEST(Swap, NumbersInEachByteOrder) {
    const TempDir dir;
    const std::string bytes(
        "\0\0\1\0\x3f\x80\0\0\xff\xfe\xff\xfe\x40\x09\x21\xfb\x54\x44\x2d\x18\1", 21);
    const std::string path = dir.write("big", bytes);
    File file(path.c_str(), "r");
    const Swap big(1);
    int i4 = 0;
    float f4 = 0;
    short i2 = 0;
    unsigned short u2 = 0;
    double f8 = 0;
    EXPECT_EQ(big.readInt4(file, i4), 4);
    EXPECT_EQ(big.readFloat(file, f4), 4);
    EXPECT_EQ(big.readInt2(file, i2), 2);
    EXPECT_EQ(big.readUInt2(file, u2), 2);
    EXPECT_EQ(big.readDouble(file, f8), 8);
    EXPECT_EQ(i4, 256);
    EXPECT_EQ(f4, 1);
    EXPECT_EQ(i2, -2);
    EXPECT_EQ(u2, 65534);
    EXPECT_EQ(f8, 3.141592653589793);
    EXPECT_EQ(big.readInt4(file, i4), 1) << "cut short";
    EXPECT_EQ(i4, 256);

    file.seek(0);
    unsigned int u4 = 0;
    EXPECT_EQ(Swap(2).readUInt4(file, u4), 4);
    EXPECT_EQ(u4, 65536U);
}

TEST(Zlib, StreamsFollowEachOther) {
    const std::string first(5000, 'a');
    Buffer in = makeBuffer(compress(first) + compress("second"));
    Buffer out(6000);
    Zlib zlib;
    EXPECT_EQ(zlib.decomp(in, out), Z_STREAM_END);
    EXPECT_EQ(out.size, 5000);
    EXPECT_EQ(zlib.decomp(in, out), Z_STREAM_END);
    EXPECT_EQ(getText(out), first + "second");
    EXPECT_EQ(in.getAvail(), 0);
}

TEST(Zlib, BadInputAndWrongDirection) {
    Zlib zlib;
    Buffer in = makeBuffer("this is no stream");
    Buffer out(100);
    EXPECT_EQ(zlib.decomp(in, out), Z_DATA_ERROR);
    EXPECT_EQ(out.size, 0);
    EXPECT_EQ(zlib.comp(Z_FINISH), -1);
    Zlib packer(0);
    EXPECT_EQ(packer.decomp(), -1);
    EXPECT_EQ(packer.decomp(in, out), -1);
    EXPECT_EQ(packer.finish(), Z_OK);
    EXPECT_EQ(packer.finish(), Z_OK) << "twice is harmless";
    Buffer none;
    EXPECT_EQ(Zlib().decomp(none, none), Z_BUF_ERROR);
}
