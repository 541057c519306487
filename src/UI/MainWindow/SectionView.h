#pragma once

#include "UI/MainWindow/MainSection.h"

#include <QObject>
#include <QUrl>

#include <functional>
#include <memory>

namespace kestrowind {

/// How a section is shown: the QML file of its root item and the view model that this item takes
/// as its required property `model`. Both exist only while the section can be seen.
///
/// The root item's implicitHeight is its natural height. It gets the width of the window, and at
/// least the height of the area under the toolbar, so that it may centre what is small.
struct SectionView {
    MainSection section = MainSection::dashboard;
    QUrl qmlUrl;
    std::function<std::unique_ptr<QObject>()> makeModel;
};

} // namespace kestrowind
