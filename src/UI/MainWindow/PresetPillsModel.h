#pragma once

#include "UI/MainWindow/PresetPill.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

class AppState;

/// The preset bar: the pills that have room, the overflow menu's items, and what choosing one does.
class PresetPillsModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(kestrowind::RowList* shown READ shown CONSTANT FINAL)
    Q_PROPERTY(kestrowind::RowList* overflow READ overflow CONSTANT FINAL)
    Q_PROPERTY(double availableWidth READ availableWidth WRITE setAvailableWidth NOTIFY
                   availableWidthChanged FINAL)
    Q_PROPERTY(double rowWidth READ rowWidth NOTIFY rowWidthChanged FINAL)
    Q_PROPERTY(double spacing READ spacing CONSTANT FINAL)
    Q_PROPERTY(double overflowWidth READ overflowWidth CONSTANT FINAL)
    Q_PROPERTY(int activeRow READ activeRow NOTIFY activeRowChanged FINAL)
    Q_PROPERTY(bool isSwitchable READ isSwitchable NOTIFY hindranceChanged FINAL)
    Q_PROPERTY(QString hindrance READ hindrance NOTIFY hindranceChanged FINAL)
    Q_PROPERTY(
        bool isActiveInOverflow READ isActiveInOverflow NOTIFY isActiveInOverflowChanged FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("made by the main window")

public:
    explicit PresetPillsModel(AppState& appState, QObject* parent = nullptr);

    [[nodiscard]] PresetPillList* shown() { return &m_shown; }
    /// Under the full names.
    [[nodiscard]] ChoiceList* overflow() { return &m_overflow; }
    /// Points. No pill is shown before there is room at all.
    [[nodiscard]] double availableWidth() const { return m_availableWidth; }
    void setAvailableWidth(double width);
    /// Of the pills and the overflow menu, points.
    [[nodiscard]] double rowWidth() const { return m_rowWidth; }
    [[nodiscard]] static double spacing() { return PresetPills::spacing; }
    [[nodiscard]] static double overflowWidth() { return PresetPills::overflowWidth; }
    /// Of the active pill among the shown ones; 0 when the active slot has none.
    [[nodiscard]] int activeRow() const { return m_activeRow; }
    [[nodiscard]] bool isSwitchable() const { return hindrance().isEmpty(); }
    /// Why no preset can be chosen now; empty while one can.
    [[nodiscard]] QString hindrance() const;
    /// The active slot has no pill of its own now.
    [[nodiscard]] bool isActiveInOverflow() const { return m_isActiveInOverflow; }

    /// Ignored for what is no slot's identifier, and while nothing can be chosen.
    Q_INVOKABLE void activate(const QString& slotID);

Q_SIGNALS:
    void availableWidthChanged();
    void rowWidthChanged();
    void activeRowChanged();
    void hindranceChanged();
    void isActiveInOverflowChanged();

private:
    void updatePills();

    AppState& m_appState;
    PresetPillList m_shown;
    ChoiceList m_overflow;
    double m_availableWidth = 0;
    double m_rowWidth = 0;
    int m_activeRow = 0;
    bool m_isActiveInOverflow = false;
};

} // namespace kestrowind
