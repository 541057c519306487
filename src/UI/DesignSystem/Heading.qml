import QtQuick
import Kestrowind.DesignSystem

// A title that assistive technology can go to.
Label {
    font: Typography.headline
    Accessible.role: Accessible.Heading
    Accessible.name: text
}
