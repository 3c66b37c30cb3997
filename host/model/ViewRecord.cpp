#include "ViewRecord.h"

#include "host/workers/Record.h"

#include <bit>

namespace host::viewrecord {

namespace {

const std::int64_t stays = -1;

/// What the parts of any value stand in.
struct Parts
{
    std::int64_t kind = stays; ///< Which of the kinds of ViewValue, or `stays`.
    int number = 0;
    std::array<double, 5> sizes{};
    std::string text = {};
};

Parts partsOf(const ViewValue& value)
{
    Parts parts{static_cast<std::int64_t>(value.index())};
    if (const int* number = std::get_if<int>(&value))
        parts.number = *number;
    if (const auto* text = std::get_if<std::string>(&value))
        parts.text = *text;
    if (const auto* action = std::get_if<OtherAction>(&value))
        parts.text = action->type;
    if (const auto* zoom = std::get_if<Magnification>(&value)) {
        const auto& [left, bottom, right, top] = zoom->rectangle;
        parts.number = zoom->type;
        parts.sizes = {zoom->percent, left, bottom, right, top};
    }
    return parts;
}

std::optional<ViewValue> valueOf(const Parts& parts)
{
    const auto& [percent, left, bottom, right, top] = parts.sizes;
    const std::array<ViewValue, std::variant_size_v<ViewValue>> kinds{
        Unset(),    parts.number,           Magnification{parts.number, percent, {left, bottom, right, top}},
        LastPage(), FileNameAsTitle(),      parts.text,
        Invalid(),  OtherAction{parts.text}};
    if (parts.kind < 0 || parts.kind >= static_cast<std::int64_t>(kinds.size()))
        return std::nullopt;
    return kinds.at(static_cast<std::size_t>(parts.kind));
}

} // namespace

std::string write(const ViewChange& view)
{
    RecordWriter record;
    for (const viewentries::Description& each : viewentries::all()) {
        const std::optional<ViewValue>& value = view[each.entry];
        const Parts parts = value ? partsOf(*value) : Parts();
        record.add(parts.kind).add(parts.number).add(parts.text);
        for (const double size : parts.sizes)
            record.add(std::bit_cast<std::int64_t>(size));
    }
    return record.bytes();
}

std::optional<ViewChange> parse(const std::string& record)
{
    RecordReader reader(record);
    ViewChange view;
    for (const viewentries::Description& each : viewentries::all()) {
        Parts parts{reader.number(), static_cast<int>(reader.number()), {}, reader.text()};
        for (double& size : parts.sizes)
            size = std::bit_cast<double>(reader.number());
        if (const std::optional<ViewValue> value = valueOf(parts))
            view.set(each.entry, *value);
    }
    return reader.complete() ? std::optional(view) : std::nullopt;
}

} // namespace host::viewrecord
