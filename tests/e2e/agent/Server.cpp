#include <array>

#include "Common.h"

namespace ordalyn::e2e {

namespace {

Commands AllCommands() {
    Commands commands;
    AddWindowCommands(commands);
    AddMenuCommands(commands);
    AddControlCommands(commands);
    AddListCommands(commands);
    AddInputCommands(commands);
    AddClipboardCommands(commands);
    AddAccessibleCommands(commands);
    AddResourceCommands(commands);
    commands["ping"] = [](const Json&) -> Json {
        return Json::Object{{"process", GetCurrentProcessId()},
                            {"commandLine", ToUtf8(GetCommandLineW())}};
    };
    return commands;
}

std::string Answer(const Commands& commands, const std::string& line) {
    try {
        const Json request = Json::Parse(line);
        const auto command = commands.find(request.String("do"));
        if (command == commands.end())
            throw std::runtime_error("no such command");
        return Json(Json::Object{{"result", command->second(request)}}).Dump();
    } catch (const std::exception& failure) {
        return Json(Json::Object{{"error", failure.what()}}).Dump();
    }
}

void Converse(SOCKET connection, const Commands& commands) {
    std::string pending;
    std::array<char, 4096> buffer{};
    for (;;) {
        const int received = recv(connection, buffer.data(), static_cast<int>(buffer.size()), 0);
        if (received <= 0)
            return;
        pending.append(buffer.data(), static_cast<std::size_t>(received));
        for (std::size_t end = 0; (end = pending.find('\n')) != std::string::npos;) {
            const std::string answer = Answer(commands, pending.substr(0, end)) + '\n';
            pending.erase(0, end + 1);
            for (std::size_t sent = 0; sent < answer.size();) {
                const int count = send(connection, answer.data() + sent,
                                       static_cast<int>(answer.size() - sent), 0);
                if (count <= 0)
                    return;
                sent += static_cast<std::size_t>(count);
            }
        }
    }
}

// The number appears under its final name only when it is complete.
void WritePort(unsigned port) {
    wchar_t path[1024] = L"";
    if (!GetEnvironmentVariableW(L"ORDALYN_E2E_PORT_FILE", path, 1024))
        return;
    const std::wstring unfinished = std::wstring(path) + L".new";
    HANDLE file =
        CreateFileW(unfinished.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return;
    const std::string text = std::to_string(port) + "\n";
    DWORD written = 0;
    WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    CloseHandle(file);
    MoveFileExW(unfinished.c_str(), path, MOVEFILE_REPLACE_EXISTING);
}

// To the launcher, which waits for it with the program.
void TellReady() {
    const std::wstring name = L"ordalyn_e2e_" + std::to_wstring(GetCurrentProcessId());
    if (HANDLE ready = OpenEventW(EVENT_MODIFY_STATE, FALSE, name.c_str())) {
        SetEvent(ready);
        CloseHandle(ready);
    }
}

}  // namespace

void Serve() {
    WSADATA data{};
    if (WSAStartup(MAKEWORD(2, 2), &data) != 0)
        return;
    const SOCKET listener = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    int length = sizeof(address);
    if (bind(listener, reinterpret_cast<const sockaddr*>(&address), length) != 0 ||
        listen(listener, 4) != 0 ||
        getsockname(listener, reinterpret_cast<sockaddr*>(&address), &length) != 0)
        return;
    WritePort(ntohs(address.sin_port));
    TellReady();
    const Commands commands = AllCommands();
    for (;;) {
        const SOCKET connection = accept(listener, nullptr, nullptr);
        if (connection == INVALID_SOCKET)
            return;
        const BOOL noDelay = TRUE;
        setsockopt(connection, IPPROTO_TCP, TCP_NODELAY, reinterpret_cast<const char*>(&noDelay),
                   sizeof(noDelay));
        Converse(connection, commands);
        closesocket(connection);
    }
}

}  // namespace ordalyn::e2e
