#include "Support/ReferencePicture.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// Of 255: another processor rounds otherwise. A grid line is 8 once softened.
constexpr int channelTolerance = 5;
/// Of all pixels: less than the smallest letter of a chart.
constexpr double pixelTolerance = 0.0004;

using Channels = std::array<int, 4>;

Channels channels(QRgb pixel) {
    return {qRed(pixel), qGreen(pixel), qBlue(pixel), qAlpha(pixel)};
}

/// The mean around a pixel: of an edge that moved by a fraction of a pixel little is left.
Channels softened(const QImage& picture, int x, int y) {
    Channels sum = {};
    int count = 0;
    for (int row = std::max(y - 1, 0); row <= std::min(y + 1, picture.height() - 1); ++row) {
        for (int column = std::max(x - 1, 0); column <= std::min(x + 1, picture.width() - 1);
             ++column) {
            const Channels pixel = channels(picture.pixel(column, row));
            std::ranges::transform(sum, pixel, sum.begin(), std::plus());
            ++count;
        }
    }
    std::ranges::transform(sum, sum.begin(), [count](int value) { return value / count; });
    return sum;
}

bool isDifferent(const Channels& first, const Channels& second) {
    return !std::ranges::equal(first, second, [](int one, int other) {
        return std::abs(one - other) <= channelTolerance;
    });
}

/// What differs in red, over a faint copy of what was expected.
struct Comparison {
    QImage difference;
    int pixels = 0;
};

Comparison compared(const QImage& expected, const QImage& picture) {
    Comparison result{.difference = expected};
    QPainter(&result.difference).fillRect(expected.rect(), QColor(255, 255, 255, 200));
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            if (!isDifferent(softened(expected, x, y), softened(picture, x, y)))
                continue;
            result.difference.setPixel(x, y, qRgb(255, 0, 0));
            ++result.pixels;
        }
    }
    return result;
}

testing::AssertionResult failure(const QString& what) {
    return testing::AssertionFailure() << what.toStdString();
}

bool save(const QImage& picture, const QString& path) {
    return QDir().mkpath(QFileInfo(path).path()) && picture.save(path);
}

} // namespace

testing::AssertionResult looksLike(const QString& name, const QImage& picture) {
    const QString room = name.section(u'/', 0, 0);
    const QString subject = name.section(u'/', 1);
    const QString kept =
        u"%1/UI/%2/pictures/%3.png"_s.arg(QStringLiteral(KESTROWIND_TESTS_FOLDER), room, subject);
    const QString shown = QStringLiteral(KESTROWIND_PICTURES_FOLDER) + u'/' + name;

    const QImage actual = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (qEnvironmentVariableIsSet("KESTROWIND_RECORD_PICTURES")) {
        return failure(save(actual, kept) ? u"recorded anew: look at %1"_s.arg(kept)
                                          : u"cannot write %1"_s.arg(kept));
    }
    const QImage expected = QImage(kept).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QString advice =
        u"%1-actual.png, %1-difference.png show it, KESTROWIND_RECORD_PICTURES=1 keeps it"_s.arg(
            shown);
    QString complaint = u"is of another size"_s;
    if (expected.size() == actual.size()) {
        const Comparison comparison = compared(expected, actual);
        if (comparison.pixels <= pixelTolerance * actual.width() * actual.height())
            return testing::AssertionSuccess();
        save(comparison.difference, shown + u"-difference.png"_s);
        complaint = u"differs in %1 pixels"_s.arg(comparison.pixels);
    }
    save(actual, shown + u"-actual.png"_s);
    return failure(u"%1 %2: %3"_s.arg(name, complaint, advice));
}

void useReferenceFonts() {
    qputenv("FONTCONFIG_FILE", KESTROWIND_TESTS_FOLDER "/Support/fonts.conf");
}

QImage sideBySide(const QList<QImage>& pictures) {
    QSize size;
    for (const QImage& picture : pictures)
        size = {size.width() + picture.width(), std::max(size.height(), picture.height())};
    QImage joined(size, QImage::Format_ARGB32_Premultiplied);
    joined.fill(Qt::transparent);
    QPainter painter(&joined);
    int x = 0;
    for (const QImage& picture : pictures) {
        painter.drawImage(QPoint(x, 0), picture);
        x += picture.width();
    }
    return joined;
}

} // namespace kestrowind
