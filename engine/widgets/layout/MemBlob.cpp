#include "engine/widgets/layout/MemBlob.h"

#include <utility>

#include "platform/Unicode.h"

int CLQMemBlob::GetKind(int index) const {
    return HasRecord(index) ? m_vecRecords[index].kind : -1;
}

std::vector<int> CLQMemBlob::GetChildren(int index) const {
    std::vector<int> children;
    if (!HasRecord(index))
        return children;
    for (int i = index + 1; i < GetRecordCount(); ++i) {
        if (m_vecRecords[i].parent == index)
            children.push_back(i);
    }
    return children;
}

bool CLQMemBlob::AppendRecord(int kind, int parent) {
    Record record;
    record.kind = kind;
    record.parent = parent;
    if (kind < 0 || GetRecordCount() >= kMaxRecords || (parent != -1 && !HasRecord(parent)))
        return false;
    if (parent != -1)
        record.depth = m_vecRecords[parent].depth + 1;
    if (record.depth > kMaxDepth)
        return false;
    m_vecRecords.push_back(std::move(record));
    return true;
}

int CLQMemBlob::AddRecord(int parent) {
    return HasRecord(parent) && AppendRecord(0, parent) ? GetRecordCount() - 1 : -1;
}

bool CLQMemBlob::BeginRecord(int index, int kind) {
    if (kind < 0)
        return false;
    if (index == GetRecordCount() && !AppendRecord(kind, -1))
        return false;
    if (!HasRecord(index) || m_vecRecords[index].written)
        return false;
    m_vecRecords[index].kind = kind;
    m_vecRecords[index].written = true;
    return true;
}

/// The number of a string, -1 when it cannot be kept.
int CLQMemBlob::Intern(const std::wstring& text) {
    const auto found = m_mapStringToNumber.find(text);
    if (found != m_mapStringToNumber.end())
        return found->second;
    const std::string utf8 = korvane::ToUtf8(text);
    const int number = static_cast<int>(m_vecStrings.size());
    if (number >= kMaxStrings || utf8.size() > kMaxText || korvane::FromUtf8(utf8) != text)
        return -1;
    m_vecStrings.push_back(text);
    m_mapStringToNumber.emplace(text, number);
    return number;
}

bool CLQMemBlob::Store(int index, const std::wstring& key, Type type, std::uint32_t value) {
    const int keyNumber = HasRecord(index) ? Intern(key) : -1;
    if (keyNumber < 0)
        return false;
    const Property property = {static_cast<std::uint16_t>(keyNumber), type, value};
    std::vector<Property>& properties = m_vecRecords[index].properties;
    for (Property& stored : properties) {
        if (stored.key == property.key) {
            stored = property;
            return true;
        }
    }
    if (static_cast<int>(properties.size()) >= kMaxProperties)
        return false;
    properties.push_back(property);
    return true;
}

bool CLQMemBlob::SetNumber(int index, const std::wstring& key, int value) {
    return Store(index, key, Type::Number, static_cast<std::uint32_t>(value));
}

bool CLQMemBlob::SetText(int index, const std::wstring& key, const std::wstring& value) {
    const int number = HasRecord(index) ? Intern(value) : -1;
    return number >= 0 && Store(index, key, Type::Text, static_cast<std::uint32_t>(number));
}

bool CLQMemBlob::SetColor(int index, const std::wstring& key, std::uint32_t value) {
    return Store(index, key, Type::Color, value);
}

const CLQMemBlob::Property* CLQMemBlob::Find(int index, const std::wstring& key, Type type) const {
    const auto number = m_mapStringToNumber.find(key);
    if (!HasRecord(index) || number == m_mapStringToNumber.end())
        return nullptr;
    for (const Property& property : m_vecRecords[index].properties) {
        if (property.key == number->second)
            return property.type == type ? &property : nullptr;
    }
    return nullptr;
}

bool CLQMemBlob::GetNumber(int index, const std::wstring& key, int& value) const {
    const Property* property = Find(index, key, Type::Number);
    if (property)
        value = static_cast<int>(property->value);
    return property != nullptr;
}

bool CLQMemBlob::GetText(int index, const std::wstring& key, std::wstring& value) const {
    const Property* property = Find(index, key, Type::Text);
    if (property)
        value = m_vecStrings[property->value];
    return property != nullptr;
}

bool CLQMemBlob::GetColor(int index, const std::wstring& key, std::uint32_t& value) const {
    const Property* property = Find(index, key, Type::Color);
    if (property)
        value = property->value;
    return property != nullptr;
}
