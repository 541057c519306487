#include "Simulator/Program/ControlClient.h"

#include "Simulator/Link/SimulatedMac.h"
#include "Simulator/Services/ControlCall.h"

#include <cstdio>

namespace kestrowind {

using namespace Qt::StringLiterals;

namespace {

struct Request {
    std::filesystem::path root;
    std::vector<std::string> words;
};

std::expected<Request, std::string> parse(QStringList arguments) {
    Request request;
    if (const auto root = SimulatedMac::root())
        request.root = *root;
    if (!arguments.isEmpty() && arguments.constFirst() == "--root"_L1) {
        if (arguments.size() < 2 || arguments.at(1).isEmpty())
            return std::unexpected("--root needs a folder");
        request.root = SimulatedMac::rootAt(arguments.at(1).toStdString());
        arguments.remove(0, 2);
    }
    if (request.root.empty())
        return std::unexpected("which machine? Give --root DIR");
    if (arguments.isEmpty())
        return std::unexpected("what is to be done? --help lists the commands");
    for (const QString& word : std::as_const(arguments))
        request.words.push_back(word.toStdString());
    return request;
}

} // namespace

int runControlClient(const QStringList& arguments) {
    const auto request = parse(arguments);
    const auto answer =
        request ? callControl(request->root, request->words) : std::unexpected(request.error());
    if (!answer) {
        std::fprintf(stderr, "kestrowind-simulator ctl: %s\n", answer.error().c_str());
        return 1;
    }
    if (!answer->is_null())
        std::printf("%s\n", answer->dump(2).c_str());
    return 0;
}

} // namespace kestrowind
