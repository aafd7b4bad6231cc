// ready_picture PICTURE FILE: writes the pixels of a picture as painting wants them, line by line,
// so that the program need not work them out at every start. Run by the build.
#include <QFile>
#include <QImage>

int main(int argc, char* argv[]) {
    if (argc != 3) {
        return 2;
    }
    const QImage picture =
        QImage(QFile::decodeName(argv[1])).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QFile file(QFile::decodeName(argv[2]));
    const bool written = !picture.isNull() && file.open(QIODevice::WriteOnly) &&
                         file.write(reinterpret_cast<const char*>(picture.constBits()),
                                    picture.sizeInBytes()) == picture.sizeInBytes() &&
                         file.flush();
    return written ? 0 : 1;
}
