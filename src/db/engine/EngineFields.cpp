// The face: fields of the current row, and the date helper.
#include "db/engine/engine.h"
#include "db/engine/EngineAnswers.h"

namespace norvane::engine
{

namespace
{

// The table and definition behind a field handle; nothing for a handle that is none.
struct FieldPlace {
    int position = 0; // set while `open` is found
    OpenTable *open = nullptr;

    explicit FieldPlace(Handle field)
        : open(handleRegistry().part(field, HandleKind::Field, position))
    {
    }
    explicit operator bool() const { return open != nullptr; }
    template <class Work>
    Code change(const Work &work) const
    {
        return withTable(open, r4failure,
                         [&](OpenTable &own) { return answer(own, work(own.table)); });
    }
    const FieldDef &def() const
    {
        return open->table.layout().fields[static_cast<std::size_t>(position)];
    }
};

} // namespace

std::int32_t f4long(Handle field)
{
    const FieldPlace place(field);
    return place ? place.open->table.integer(place.position) : 0;
}

double f4double(Handle field)
{
    const FieldPlace place(field);
    return place ? place.open->table.number(place.position) : 0.0;
}

std::uint32_t f4len_v(Handle field)
{
    const FieldPlace place(field);
    return place ? place.def().length : 0;
}

const char *f4ptr(Handle field)
{
    const FieldPlace place(field);
    return place ? asText(place.open->table.fieldBytes(place.position)).data() : nullptr;
}

char f4type(Handle field)
{
    const FieldPlace place(field);
    return place ? place.def().type : '\0';
}

int f4decimals(Handle field)
{
    const FieldPlace place(field);
    return place ? place.def().decimals : 0;
}

const char *f4name(Handle field)
{
    const FieldPlace place(field);
    return place ? place.def().name.c_str() : nullptr;
}

void f4assignLong(Handle field, std::int32_t value)
{
    const FieldPlace place(field);
    (void)place.change([&](Table &rows) { return rows.assignInteger(place.position, value); });
}

void f4assignDouble(Handle field, double value)
{
    const FieldPlace place(field);
    (void)place.change([&](Table &rows) { return rows.assignNumber(place.position, value); });
}

void f4assignNVB(Handle field, std::string_view text, std::uint32_t length)
{
    const FieldPlace place(field);
    (void)place.change(
        [&](Table &rows) { return rows.assignText(place.position, text.substr(0, length)); });
}

std::uint32_t f4memoLenVB(Handle field)
{
    const FieldPlace place(field);
    if (!place || place.def().type != 'M')
        return 0;
    return withTable(place.open, 0U, [&](OpenTable &open) {
        const Result<const std::string *> text = open.table.memo(place.position);
        if (text.ok())
            return static_cast<std::uint32_t>((*text)->size());
        open.session.note(text.error(), Session::Answer::Failure);
        return 0U;
    });
}

const char *f4memoPtr(Handle field)
{
    const FieldPlace place(field);
    if (!place || place.def().type != 'M')
        return nullptr;
    // f4memoLenVB, which everybody asks first, has reported a failure already
    const char *const none = nullptr;
    return withTable(place.open, none, [&](OpenTable &open) {
        const Result<const std::string *> text = open.table.memo(place.position);
        return text.ok() ? (*text)->c_str() : nullptr;
    });
}

Code f4memoAssignN(Handle field, std::string_view text, std::uint32_t length)
{
    const FieldPlace place(field);
    return place.change(
        [&](Table &rows) { return rows.assignMemo(place.position, text.substr(0, length)); });
}

std::string date4format(std::string_view date, std::string_view picture)
{
    struct Part {
        std::string_view sign;
        std::size_t at;
    };
    constexpr Part parts[] = {{"CC", 0}, {"YY", 2}, {"MM", 4}, {"DD", 6}};
    std::string text;
    while (!picture.empty()) {
        std::size_t taken = 1;
        for (const Part &part : parts) {
            if (picture.starts_with(part.sign)) {
                text.append(date.size() == 8 ? date.substr(part.at, 2) : "  ");
                taken = 2;
            }
        }
        if (taken == 1)
            text.push_back(picture.front());
        picture.remove_prefix(taken);
    }
    return text;
}

} // namespace norvane::engine
