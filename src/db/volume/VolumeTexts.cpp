#include "db/volume/VolumeTexts.h"

#include <array>
#include <cstdio>

namespace volume
{

namespace
{

constexpr const char *firstNames[] = {"Ann",   "Bob",    "Carla",   "David",  "Elena",    "Frank",
                                      "Grace", "Henry",  "Irene",   "Jorge",  "Karin",    "Louis",
                                      "Maria", "Nils",   "Olga",    "Peter",  "Rosa",     "Samuel",
                                      "Tina",  "Victor", "Ren\xE9", "Zo\xEB", "J\xFCrgen"};
constexpr const char *lastStarts[] = {"Ander", "Bar",  "Carl", "Dun",  "Ell",   "Fair", "Grant",
                                      "Hart",  "Jen",  "Kess", "Lund", "Mor",   "Nor",  "Oster",
                                      "Park",  "Quin", "Roth", "Stan", "Thorn", "Well"};
constexpr const char *lastEnds[] = {"son",   "ton", "berg", "ley", "man",
                                    "field", "er",  "wood", "sen", "by"};
constexpr const char *firmWords[] = {"Northwind", "Harbor",   "Summit",   "Valley",
                                     "Granite",   "Cedar",    "Lakeside", "Pioneer",
                                     "Union",     "Sterling", "Maple",    "Riverside"};
constexpr const char *firmKinds[] = {"Mills",  "Logistics", "Dental",   "Law Office",
                                     "Foods",  "Printing",  "Motors",   "Caf\xE9",
                                     "Bakery", "Clinic",    "Hardware", "Insurance"};
constexpr const char *streets[] = {"Main Street", "Oak Avenue", "Mill Road",   "Station Road",
                                   "High Street", "Park Lane",  "Third Avenue"};
constexpr const char *cities[] = {"Salem",   "Portland",  "Bend",   "Eugene", "Astoria",
                                  "Medford", "Corvallis", "Albany", "Newport"};
constexpr const char *models[] = {"Copier", "Printer",  "Scanner", "Server",      "Router",
                                  "Till",   "Terminal", "Plotter", "Backup Plan", "Telephone"};
constexpr const char *troubles[] = {"does not start",       "prints blank pages",
                                    "loses the connection", "makes a loud noise",
                                    "shows error 45",       "jams on thick paper",
                                    "is very slow",         "asks for a password",
                                    "stops after an hour",  "smells of smoke",
                                    "cannot be reached",    "needs a new drum",
                                    "reports low toner",    "overheats"};
constexpr const char *circumstances[] = {
    "since Monday",    "after the update", "in the mornings", "when two people use it",
    "after the move",  "every time",       "since the storm", "with the new cable",
    "after a restart", "at month end"};
constexpr const char *sentences[] = {
    "The customer called and described the problem in detail.",
    "It began without warning and comes back several times a day.",
    "Switching it off and on again helps for an hour at most.",
    "The cable was changed on the telephone, without any difference.",
    "A colleague saw the same at another branch last month.",
    "The firmware is two versions behind and should be brought up to date.",
    "Photographs of the display were sent by e-mail.",
    "They need it running again before the end of the week.",
    "The machine is covered by the contract until next year.",
    "Room temperature is high and the ventilation is covered with dust.",
    "Nobody remembers a change of the settings.",
    "The log shows the same entry every few minutes.",
    "A replacement was offered until the repair is done."};
constexpr const char *endings[] = {
    "Replaced the fuser and cleaned the rollers; test prints are fine.",
    "Installed the update and restarted; the customer confirmed that it works.",
    "The power supply was faulty and has been exchanged.",
    "Explained the setting on the telephone; no visit was needed.",
    "Sent a technician, who found a loose connector."};

void append(std::string &text, std::string_view more)
{
    if (!text.empty())
        text += ' ';
    text += more;
}

std::string lowerCase(std::string text)
{
    for (char &c : text)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return text;
}

} // namespace

Customer makeCustomer(std::uint64_t number)
{
    Dice dice(number << 20U);
    Customer made;
    made.firstName = dice.oneOf(firstNames);
    made.lastName = std::string(dice.oneOf(lastStarts)) + dice.oneOf(lastEnds);
    if (dice.below(3) != 0)
        made.company = std::string(dice.oneOf(firmWords)) + ' ' + dice.oneOf(firmKinds);
    made.address = std::to_string(1 + dice.below(240)) + ' ' + dice.oneOf(streets);
    made.city = dice.oneOf(cities);
    made.postalCode = "97" + std::to_string(100 + dice.below(900));
    made.phone = "(503) 555-" + std::to_string(1000 + dice.below(9000));
    made.email = lowerCase(made.lastName) + std::to_string(number) + "@post.example";
    return made;
}

IssueText makeIssueText(std::uint64_t number, std::string_view product, bool resolved)
{
    Dice dice((number << 20U) + 1);
    IssueText made;
    made.shortDesc = product.substr(0, 28);
    append(made.shortDesc, dice.oneOf(troubles));
    append(made.shortDesc, dice.oneOf(circumstances));
    for (int count = 3 + dice.below(5); count > 0; --count)
        append(made.desc, dice.oneOf(sentences));
    append(made.desc, "Reference " + std::to_string(number) + '.');
    if (resolved)
        made.resolution = dice.oneOf(endings);
    return made;
}

std::string productName(int number)
{
    return std::string(models[static_cast<std::size_t>(number) % std::size(models)]) + ' ' +
           static_cast<char>('A' + number % 26) + std::to_string(100 + number);
}

std::string loginName(int number)
{
    return lowerCase(firstNames[static_cast<std::size_t>(number) % 20]) +
           std::to_string(1 + number / 20);
}

std::string someDay(Dice &dice)
{
    std::array<char, 16> text{};
    const int day = dice.below(15 * 12 * 28);
    std::snprintf(text.data(), text.size(), "%04d%02d%02d", 2012 + day / 336, 1 + day / 28 % 12,
                  1 + day % 28);
    return text.data();
}

} // namespace volume
