#include "platform/files.h"

#include <qxutility/formats/text_file.h>

#include <algorithm>
#include <string_view>
#include <utility>

struct QXTextOutput::State {
    qx::platform::File file;
    std::size_t capacity;
    std::string held;
    bool lost = false;  // a text, since the last Flush

    void Write(std::string_view text)
    {
        if (!file.Write(text))
            lost = true;
    }
    void WriteHeld()
    {
        Write(held);
        held.clear();
    }
};

QXTextOutput::QXTextOutput(const char* path, int capacity) noexcept
    : m_state(new State{qx::platform::File(path, qx::platform::FileMode::Create),
                        static_cast<std::size_t>(std::max(capacity, 0)),
                        {}})
{
}
QXTextOutput::QXTextOutput(QXTextOutput&& other) noexcept = default;

QXTextOutput& QXTextOutput::operator=(QXTextOutput&& other) noexcept
{
    std::swap(m_state, other.m_state);
    return *this;
}

QXTextOutput::~QXTextOutput()
{
    if (m_state)
        m_state->WriteHeld();
}

QXTextOutput::operator bool() const
{
    return static_cast<bool>(m_state->file);
}

void QXTextOutput::AddString(const char* text) noexcept
{
    const std::string_view added = text;
    if (m_state->held.size() + added.size() >= m_state->capacity)
        m_state->WriteHeld();
    if (added.size() >= m_state->capacity)
        m_state->Write(added);
    else
        m_state->held += added;
}

bool QXTextOutput::Flush()
{
    m_state->WriteHeld();
    return !std::exchange(m_state->lost, false);
}
