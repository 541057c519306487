// Draws the application's icon for a Mac, in every size that the system asks for.
// usage: kestrowind_icon FILE.icns

#include "UI/DesignSystem/AppIcon.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <QtEndian>

#include <cstdio>

namespace {

using namespace kestrowind;

struct Picture {
    const char* kind; ///< the file format's name for this size
    int side;         ///< pixels
};

constexpr Picture pictures[] = {
    {"icp4", 16},   {"icp5", 32}, {"ic07", 128}, {"ic08", 256}, {"ic09", 512},
    {"ic10", 1024}, {"ic11", 32}, {"ic12", 64},  {"ic13", 256}, {"ic14", 512},
};

/// The rounded square leaves the margin that icons on a Mac have, in which the system draws nothing
/// of its own.
QImage icon(int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double margin = side * 100.0 / 1024;
    AppIcon::paintIcon(painter,
                       QRectF(0, 0, side, side).adjusted(margin, margin, -margin, -margin));
    return image;
}

void appendChunk(QByteArray& file, const char* kind, const QByteArray& content) {
    file += kind;
    const quint32 size = qToBigEndian(static_cast<quint32>(content.size()) + 8);
    file.append(reinterpret_cast<const char*>(&size), sizeof size);
    file += content;
}

} // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: kestrowind_icon FILE.icns\n", stderr);
        return 2;
    }
    QByteArray chunks;
    for (const auto& [kind, side] : pictures) {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        icon(side).save(&buffer, "PNG");
        appendChunk(chunks, kind, png);
    }
    QByteArray file;
    appendChunk(file, "icns", chunks);
    QSaveFile output(QString::fromLocal8Bit(argv[1]));
    if (!output.open(QIODevice::WriteOnly) || output.write(file) != file.size() ||
        !output.commit()) {
        std::fprintf(stderr, "kestrowind_icon: %s\n", qPrintable(output.errorString()));
        return 1;
    }
    return 0;
}
