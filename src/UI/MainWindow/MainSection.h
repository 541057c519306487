#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <array>

namespace kestrowind {

/// The sections of the main window, in the order of the section picker.
enum class MainSection { dashboard, curves, presets, settings };

inline constexpr std::array mainSections = {MainSection::dashboard, MainSection::curves,
                                            MainSection::presets, MainSection::settings};

/// The section's stable name, as the launch option "InitialSection" has it.
[[nodiscard]] QString rawValue(MainSection section);
/// In the user's language.
[[nodiscard]] QString title(MainSection section);
[[nodiscard]] QString symbolName(MainSection section);
/// The section of that name in any letter case; the dashboard for every other text.
[[nodiscard]] MainSection sectionNamed(const QString& name);

/// What the section picker shows.
class MainSectionsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the main window")

public:
    enum Role { TitleRole = Qt::UserRole, SymbolNameRole };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};

} // namespace kestrowind
