#pragma once

#include <expected>
#include <filesystem>
#include <string>

namespace kestrowind {

/// A listening local socket in the file system that only this user may connect to; its file goes
/// with it. A file left behind by a dead machine is replaced.
class ListeningSocket {
public:
    /// The error says that the system has no sockets with so long a name.
    [[nodiscard]] static std::expected<void, std::string>
    checkLength(const std::filesystem::path& path);

    /// type is SOCK_STREAM or SOCK_SEQPACKET. The socket does not block and is not inherited.
    [[nodiscard]] static std::expected<ListeningSocket, std::string>
    listen(const std::filesystem::path& path, int type);

    ListeningSocket(ListeningSocket&& other) noexcept;
    ListeningSocket& operator=(ListeningSocket&& other) noexcept;
    ~ListeningSocket();

    [[nodiscard]] int descriptor() const { return m_descriptor; }

private:
    ListeningSocket(int descriptor, std::filesystem::path path);

    int m_descriptor;
    std::filesystem::path m_path;
};

} // namespace kestrowind
