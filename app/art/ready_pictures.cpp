// ready_pictures PIXELS INDEX NAME=FILE...: writes the pixels of all pictures as painting wants
// them, one after another, to PIXELS, and where each of them lies, as app/pictures.cpp has it, to
// INDEX. NAME@2x is the picture for dense screens. Run by the build.
#include <QFile>
#include <QImage>
#include <QString>
#include <algorithm>
#include <cstdio>
#include <tuple>
#include <vector>

namespace {

// Line by line, since the toolkit converts a whole picture on threads of its own, which a
// sanitizer cannot see into.
bool write_pixels(const QImage& picture, QFile& pixels) {
    for (int y = 0; y < picture.height(); ++y) {
        const QImage line = picture.copy(0, y, picture.width(), 1)
                                .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        const qint64 size = line.sizeInBytes();
        if (pixels.write(reinterpret_cast<const char*>(line.constBits()), size) != size) {
            return false;
        }
    }
    return true;
}

struct named_picture {
    QString name;
    int scale = 1;
    QImage image;
};

named_picture read(const QString& argument) {
    const QString dense = QStringLiteral("@2x");
    QString name = argument.section(QLatin1Char('='), 0, 0);
    const int scale = name.contains(dense) ? 2 : 1;
    return {name.remove(dense), scale, QImage(argument.section(QLatin1Char('='), 1))};
}

// Those of a kind of screen lie together, small ones first: a window then reads few pages.
bool comes_first(const named_picture& one, const named_picture& other) {
    const auto order = [](const named_picture& picture) {
        return std::tuple(picture.scale, picture.image.sizeInBytes(), picture.name);
    };
    return order(one) < order(other);
}

bool write(const named_picture& picture, QFile& pixels, QFile& index) {
    const QByteArray entry = QStringLiteral("{\"%1\", %2, %3, %4, %5},\n")
                                 .arg(picture.name)
                                 .arg(picture.scale)
                                 .arg(picture.image.width())
                                 .arg(picture.image.height())
                                 .arg(pixels.pos())
                                 .toUtf8();
    return index.write(entry) == entry.size() && write_pixels(picture.image, pixels);
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc < 4) {
        return 2;
    }
    QFile pixels(QFile::decodeName(argv[1]));
    QFile index(QFile::decodeName(argv[2]));
    if (!pixels.open(QIODevice::WriteOnly) || !index.open(QIODevice::WriteOnly)) {
        return 1;
    }
    std::vector<named_picture> pictures;
    for (int i = 3; i < argc; ++i) {
        pictures.push_back(read(QFile::decodeName(argv[i])));
        if (pictures.back().image.isNull()) {
            std::fprintf(stderr, "ready_pictures: %s: not a picture\n", argv[i]);
            return 1;
        }
    }
    std::sort(pictures.begin(), pictures.end(), comes_first);
    const bool written =
        std::all_of(pictures.begin(), pictures.end(),
                    [&](const named_picture& picture) { return write(picture, pixels, index); });
    return written && pixels.flush() && index.flush() ? 0 : 1;
}
