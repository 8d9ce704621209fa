#include "platform/Files.h"

#include "platform/System.h"

#include <algorithm>

std::string Dir(const std::string &pPath) {
    if (!os::IsFile(pPath)) {
        return {};
    }
    const std::string path = os::NativePath(pPath);
    return path.substr(path.find_last_of('/') + 1);
}

TextInput::TextInput(const std::string &pName) {
    os::ReadResult file = os::ReadFile(pName);
    myBytes = std::move(file.bytes);
    myFault = std::move(file.fault);
}

std::string_view TextInput::LineInput() {
    const std::string_view rest = std::string_view(myBytes).substr(myAt);
    const std::size_t length = std::min(rest.find('\r'), rest.size());
    const std::string_view end = rest.substr(length, 2);
    myAt += length + (end == "\r\n" ? 2 : std::min<std::size_t>(end.size(), 1));
    return rest.substr(0, length);
}

std::optional<std::string_view> TextInput::InputItem() {
    const std::string_view bytes = myBytes;
    const auto at = [&] { return myAt < bytes.size() ? bytes[myAt] : '\r'; };
    const auto skipBlanks = [&] {
        while (at() == ' ') {
            ++myAt;
        }
    };
    skipBlanks();
    if (at() == '\r') {
        return std::nullopt;
    }
    const std::size_t from = myAt;
    while (at() != ',' && at() != ' ' && at() != '\r') {
        ++myAt;
    }
    const std::string_view item = bytes.substr(from, myAt - from);
    skipBlanks();
    myAt += at() == ',' ? 1 : 0;
    return item;
}

void TextOutput::PrintLine(std::string_view pText) {
    myBytes += pText;
    myBytes += "\r\n";
}

TextOutput::Fault TextOutput::Close() {
    os::WriteResult result = os::WriteFile(myName, myBytes);
    return {std::move(result.fault), result.wasEmptied};
}
