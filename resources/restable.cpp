#include "resources/restable.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace {
uint64_t Key(ResKind kind, uint16_t id, uint16_t local)
{
    return (uint64_t(kind) << 32) | (uint64_t(id) << 16) | local;
}

const std::unordered_map<uint64_t, const ResEntry*>& Index()
{
    static const auto index = [] {
        std::unordered_map<uint64_t, const ResEntry*> map;
        for (auto table : {CoreTexts(), MainTexts(), SettingsTexts(), FileOpTexts(), FilterTexts()})
            for (const ResEntry& entry : table)
                map.emplace(Key(entry.kind, entry.id, entry.local), &entry);
        return map;
    }();
    return index;
}
}  // namespace

const ResEntry* FindResEntry(ResKind kind, uint16_t id, uint16_t local)
{
    const auto& index = Index();
    auto it = index.find(Key(kind, id, local));
    return it == index.end() ? nullptr : it->second;
}
