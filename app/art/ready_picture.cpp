// ready_picture PICTURE FILE: writes the pixels of a picture as painting wants them, line by line,
// so that the program need not work them out at every start. Run by the build.
#include <QFile>
#include <QImage>

namespace {

// The toolkit converts a whole picture on threads of its own, which a sanitizer cannot see into.
bool write_line(const QImage& picture, int y, QFile& file) {
    const QImage line =
        picture.copy(0, y, picture.width(), 1).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    return file.write(reinterpret_cast<const char*>(line.constBits()), line.sizeInBytes()) ==
           line.sizeInBytes();
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 3) {
        return 2;
    }
    const QImage picture(QFile::decodeName(argv[1]));
    QFile file(QFile::decodeName(argv[2]));
    bool written = !picture.isNull() && file.open(QIODevice::WriteOnly);
    for (int y = 0; written && y < picture.height(); ++y) {
        written = write_line(picture, y, file);
    }
    return written && file.flush() ? 0 : 1;
}
