#include "Simulator/Services/AtomicFile.h"

#include <QSaveFile>

namespace kestrowind {

std::expected<void, std::string> writeAtomically(const std::filesystem::path& file,
                                                 std::string_view content) {
    QSaveFile save(QString::fromStdString(file.string()));
    const auto size = static_cast<qint64>(content.size());
    if (!save.open(QIODevice::WriteOnly) || save.write(content.data(), size) != size ||
        !save.commit())
        return std::unexpected("cannot write " + file.string() + ": " +
                               save.errorString().toStdString());
    return {};
}

} // namespace kestrowind
