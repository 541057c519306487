#pragma once

#include "Core/FanPreset.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// The presets of one section of the menu.
class PresetChoices : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of CurvesModel")

public:
    enum Role { NameRole = Qt::UserRole, SymbolNameRole, IsSelectedRole };

    struct Choice {
        QUuid id;
        QString name;
        QString symbolName;
        bool isSelected = false;
        bool operator==(const Choice&) const = default;
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] const QList<Choice>& choices() const { return m_choices; }
    void setChoices(const QList<Choice>& choices);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    QList<Choice> m_choices;
};

} // namespace kestrowind
