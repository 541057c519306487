#include "UI/DesignSystem/SymbolGlyphs.h"

#include <QFontDatabase>
#include <QLoggingCategory>

#include <algorithm>
#include <array>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(designLog, "app.kestrowind.design", QtInfoMsg)

struct Entry {
    QLatin1StringView name;
    char16_t glyph;
};

// The comment is the glyph's name in the font.
constexpr std::array table = {
    Entry{"arrow.triangle.2.circlepath"_L1, 0xe863},      // autorenew
    Entry{"arrow.up.to.line"_L1, 0xe25a},                 // vertical_align_top
    Entry{"arrow.uturn.backward"_L1, 0xe166},             // undo
    Entry{"arrow.uturn.backward.circle"_L1, 0xe8ba},      // settings_backup_restore
    Entry{"arrow.uturn.forward"_L1, 0xe15a},              // redo
    Entry{"bolt.fill"_L1, 0xea0b},                        // bolt
    Entry{"chart.xyaxis.line"_L1, 0xe6e1},                // show_chart
    Entry{"checkmark"_L1, 0xe5ca},                        // check
    Entry{"checkmark.seal.fill"_L1, 0xef76},              // verified
    Entry{"checkmark.shield.fill"_L1, 0xe8e8},            // verified_user
    Entry{"chevron.down"_L1, 0xe5cf},                     // expand_more
    Entry{"chevron.left"_L1, 0xe5cb},                     // chevron_left
    Entry{"chevron.right"_L1, 0xe5cc},                    // chevron_right
    Entry{"chevron.up.chevron.down"_L1, 0xe5d7},          // unfold_more
    Entry{"cpu"_L1, 0xe322},                              // memory
    Entry{"cpu.fill"_L1, 0xe30d},                         // developer_board
    Entry{"ellipsis"_L1, 0xe5d3},                         // more_horiz
    Entry{"exclamationmark.circle.fill"_L1, 0xe000},      // error
    Entry{"exclamationmark.triangle.fill"_L1, 0xe002},    // warning
    Entry{"fanblades.slash"_L1, 0xec17},                  // mode_fan_off
    Entry{"gauge.with.dots.needle.50percent"_L1, 0xe9e4}, // speed
    Entry{"gearshape"_L1, 0xe8b8},                        // settings
    Entry{"gearshape.arrow.trianglehead.2.clockwise.rotate.90"_L1, 0xf05e}, // settings_suggest
    Entry{"hand.draw"_L1, 0xe913},                                          // touch_app
    Entry{"hourglass"_L1, 0xe88b},                                          // hourglass_empty
    Entry{"info.circle"_L1, 0xe88f},                                        // info_outline
    Entry{"info.circle.fill"_L1, 0xe88e},                                   // info
    Entry{"macwindow"_L1, 0xe069},                                          // web_asset
    Entry{"pencil"_L1, 0xe3c9},                                             // edit
    Entry{"plus"_L1, 0xe145},                                               // add
    Entry{"plus.circle.fill"_L1, 0xe147},                                   // add_circle
    Entry{"plus.square.on.square"_L1, 0xe14d},                              // content_copy
    Entry{"power"_L1, 0xe8ac},                                              // power_settings_new
    Entry{"shield.slash.fill"_L1, 0xe9d4},                                  // remove_moderator
    Entry{"snowflake"_L1, 0xeb3b},                                          // ac_unit
    Entry{"square.and.arrow.down"_L1, 0xe171},                              // save_alt
    Entry{"square.and.arrow.up"_L1, 0xe2c6},                                // file_upload
    Entry{"square.stack.3d.up"_L1, 0xe53b},                                 // layers
    Entry{"trash"_L1, 0xe872},                                              // delete
    Entry{"tray.full"_L1, 0xe156},                                          // inbox
    Entry{"wind"_L1, 0xefd8},                                               // air
    Entry{"wrench.and.screwdriver"_L1, 0xe869},                             // build
    Entry{"xmark"_L1, 0xe5cd},                                              // close
};

constexpr char16_t unknownGlyph = 0xe887; // help

} // namespace

QString SymbolGlyphs::fontFile() {
    return u":/qt/qml/Kestrowind/DesignSystem/MaterialIcons-Regular.ttf"_s;
}

QString SymbolGlyphs::fontFamily() {
    static const QString family = [] {
        const int font = QFontDatabase::addApplicationFont(fontFile());
        const QStringList families = QFontDatabase::applicationFontFamilies(font);
        if (families.isEmpty()) {
            qCWarning(designLog) << "the icon font cannot be loaded";
            return QString();
        }
        return families.front();
    }();
    return family;
}

QStringList SymbolGlyphs::names() {
    QStringList names;
    for (const Entry& entry : table)
        names.append(entry.name);
    return names;
}

QString SymbolGlyphs::glyph(const QString& name) {
    const auto found = std::ranges::find(table, name, &Entry::name);
    if (found != table.end())
        return QString(QChar(found->glyph));
    qCDebug(designLog) << "no glyph for the symbol" << name;
    return QString(QChar(unknownGlyph));
}

bool SymbolGlyphs::isFan(const QString& name) {
    return name == "fanblades"_L1;
}

} // namespace kestrowind
