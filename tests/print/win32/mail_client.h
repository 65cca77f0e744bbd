// The machine's mail client, for the time of a test: the one of tests/print/mail_client, or none.
#pragma once

#include "support/temporary_folder.h"

#include <windows.h>

#include <cstring>
#include <string>

namespace qx::test {

class MailClient {
  public:
    MailClient() : m_before(Default())
    {
        SetLibrary(ProgramFolder() + "test_mail_client.dll");
        SetDefault(kName);
        ::SetEnvironmentVariableA("QX_MAIL_LOG", m_folder.Path("mail.txt").c_str());
        SetResult("0");
    }
    MailClient(const MailClient&) = delete;
    MailClient& operator=(const MailClient&) = delete;
    ~MailClient()
    {
        SetDefault(m_before.c_str());
        ::RegDeleteKeyA(HKEY_LOCAL_MACHINE, (std::string(kClients) + "\\" + kName).c_str());
    }

    void SetDefault(const char* name) { Set(kClients, nullptr, name); }
    void SetLibrary(const std::string& path)
    {
        Set((std::string(kClients) + "\\" + kName).c_str(), "DLLPath", path.c_str());
    }
    void SetResult(const char* number) { ::SetEnvironmentVariableA("QX_MAIL_RESULT", number); }
    // The messages so far, a line for each; the next call gives those after them.
    std::string Messages()
    {
        const std::string messages = m_folder.Read("mail.txt");
        ::DeleteFileA(m_folder.Path("mail.txt").c_str());
        return messages;
    }

    static std::string ProgramFolder()
    {
        char path[MAX_PATH];
        const std::string program(path, ::GetModuleFileNameA(nullptr, path, sizeof path));
        return program.substr(0, program.rfind('\\') + 1);
    }

  private:
    static constexpr char kClients[] = "Software\\Clients\\Mail", kName[] = "Client of a test";

    static std::string Default()
    {
        char name[MAX_PATH] = "";
        DWORD size = sizeof name;
        ::RegGetValueA(HKEY_LOCAL_MACHINE, kClients, nullptr, RRF_RT_REG_SZ, nullptr, name, &size);
        return name;
    }
    static void Set(const char* key, const char* name, const char* value)
    {
        ::RegSetKeyValueA(HKEY_LOCAL_MACHINE, key, name, REG_SZ, value,
                          static_cast<DWORD>(std::strlen(value) + 1));
    }

    TemporaryFolder m_folder;
    std::string m_before;
};

}  // namespace qx::test
