#include "Simulator/Services/ListeningSocket.h"

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace kestrowind {

ListeningSocket::ListeningSocket(int descriptor, std::filesystem::path path)
    : m_descriptor(descriptor)
    , m_path(std::move(path)) {}

ListeningSocket::ListeningSocket(ListeningSocket&& other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1))
    , m_path(std::move(other.m_path)) {}

ListeningSocket& ListeningSocket::operator=(ListeningSocket&& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    std::swap(m_path, other.m_path);
    return *this;
}

ListeningSocket::~ListeningSocket() {
    if (m_descriptor < 0)
        return;
    ::close(m_descriptor);
    std::error_code ignored;
    std::filesystem::remove(m_path, ignored);
}

std::expected<void, std::string> ListeningSocket::checkLength(const std::filesystem::path& path) {
    constexpr std::size_t longest = sizeof sockaddr_un::sun_path - 1;
    const std::string name = path.string();
    if (name.size() <= longest)
        return {};
    return std::unexpected(name + " is too long for a socket: " + std::to_string(name.size()) +
                           " bytes, at most " + std::to_string(longest) + " are possible");
}

std::expected<ListeningSocket, std::string>
ListeningSocket::listen(const std::filesystem::path& path, int type) {
    const auto failure = [&path] {
        return std::unexpected("cannot listen at " + path.string() + ": " + std::strerror(errno));
    };
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string name = path.string();
    if (auto fitting = checkLength(path); !fitting)
        return std::unexpected(std::move(fitting.error()));
    std::memcpy(address.sun_path, name.c_str(), name.size() + 1);

    ListeningSocket socket(::socket(AF_UNIX, type | SOCK_CLOEXEC | SOCK_NONBLOCK, 0), path);
    if (socket.m_descriptor < 0)
        return failure();
    // Without this bind() would leave the file open to others until the chmod.
    ::fchmod(socket.m_descriptor, S_IRUSR | S_IWUSR);
    if (std::filesystem::is_socket(path))
        ::unlink(name.c_str());
    const auto* const generic = reinterpret_cast<const sockaddr*>(&address);
    if (::bind(socket.m_descriptor, generic, sizeof address) != 0) {
        const auto error = failure();
        // The file, if there is one, is not this socket's.
        ::close(std::exchange(socket.m_descriptor, -1));
        return error;
    }
    if (::chmod(name.c_str(), S_IRUSR | S_IWUSR) != 0 ||
        ::listen(socket.m_descriptor, SOMAXCONN) != 0)
        return failure();
    return socket;
}

} // namespace kestrowind
