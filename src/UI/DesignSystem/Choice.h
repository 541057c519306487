#pragma once

#include "UI/DesignSystem/RowListModel.h"

#include <QString>

namespace kestrowind {

/// One of several things to choose from.
struct Choice {
    Q_GADGET
    Q_PROPERTY(QString identifier MEMBER identifier CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString symbolName MEMBER symbolName CONSTANT FINAL)
    Q_PROPERTY(bool isChosen MEMBER isChosen CONSTANT FINAL)
    QML_VALUE_TYPE(choice)

public:
    QString identifier; ///< what the owner knows it by
    QString title;      ///< on one line
    QString symbolName;
    bool isChosen = false;

    bool operator==(const Choice&) const = default;
};

using ChoiceList = RowListModel<Choice, &Choice::identifier>;

} // namespace kestrowind
