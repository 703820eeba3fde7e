#include "platform/TzAliases.h"

#include <algorithm>
#include <iterator>

namespace platform {

namespace {

struct Alias {
    const char* Name;
    const char* CldrId;
};

// CLDR never renames a zone; the tz database does. Each CLDR identifier stands here once.
constexpr Alias renamed[] = {
    {"Africa/Asmara", "Africa/Asmera"},
    {"America/Argentina/Buenos_Aires", "America/Buenos_Aires"},
    {"America/Argentina/Catamarca", "America/Catamarca"},
    {"America/Argentina/Cordoba", "America/Cordoba"},
    {"America/Argentina/Jujuy", "America/Jujuy"},
    {"America/Argentina/Mendoza", "America/Mendoza"},
    {"America/Atikokan", "America/Coral_Harbour"},
    {"America/Indiana/Indianapolis", "America/Indianapolis"},
    {"America/Kentucky/Louisville", "America/Louisville"},
    {"America/Nuuk", "America/Godthab"},
    {"Asia/Ho_Chi_Minh", "Asia/Saigon"},
    {"Asia/Kathmandu", "Asia/Katmandu"},
    {"Asia/Kolkata", "Asia/Calcutta"},
    {"Asia/Yangon", "Asia/Rangoon"},
    {"Atlantic/Faroe", "Atlantic/Faeroe"},
    {"Europe/Kyiv", "Europe/Kiev"},
    {"Pacific/Chuuk", "Pacific/Truk"},
    {"Pacific/Kanton", "Pacific/Enderbury"},
    {"Pacific/Pohnpei", "Pacific/Ponape"},
};

// Names of the past that many machines still carry.
constexpr Alias links[] = {
    {"Africa/Timbuktu", "Africa/Abidjan"},
    {"America/Argentina/ComodRivadavia", "America/Catamarca"},
    {"America/Atka", "America/Adak"},
    {"America/Ensenada", "America/Tijuana"},
    {"America/Fort_Wayne", "America/Indianapolis"},
    {"America/Knox_IN", "America/Indiana/Knox"},
    {"America/Porto_Acre", "America/Rio_Branco"},
    {"America/Rosario", "America/Cordoba"},
    {"America/Shiprock", "America/Denver"},
    {"America/Virgin", "America/Puerto_Rico"},
    {"Antarctica/South_Pole", "Pacific/Auckland"},
    {"Asia/Ashkhabad", "Asia/Ashgabat"},
    {"Asia/Chongqing", "Asia/Shanghai"},
    {"Asia/Chungking", "Asia/Shanghai"},
    {"Asia/Dacca", "Asia/Dhaka"},
    {"Asia/Harbin", "Asia/Shanghai"},
    {"Asia/Istanbul", "Europe/Istanbul"},
    {"Asia/Kashgar", "Asia/Urumqi"},
    {"Asia/Macao", "Asia/Macau"},
    {"Asia/Tel_Aviv", "Asia/Jerusalem"},
    {"Asia/Thimbu", "Asia/Thimphu"},
    {"Asia/Ujung_Pandang", "Asia/Makassar"},
    {"Asia/Ulan_Bator", "Asia/Ulaanbaatar"},
    {"Atlantic/Jan_Mayen", "Europe/Berlin"},
    {"Australia/ACT", "Australia/Sydney"},
    {"Australia/Canberra", "Australia/Sydney"},
    {"Australia/LHI", "Australia/Lord_Howe"},
    {"Australia/NSW", "Australia/Sydney"},
    {"Australia/North", "Australia/Darwin"},
    {"Australia/Queensland", "Australia/Brisbane"},
    {"Australia/South", "Australia/Adelaide"},
    {"Australia/Tasmania", "Australia/Hobart"},
    {"Australia/Victoria", "Australia/Melbourne"},
    {"Australia/West", "Australia/Perth"},
    {"Australia/Yancowinna", "Australia/Broken_Hill"},
    {"Brazil/Acre", "America/Rio_Branco"},
    {"Brazil/DeNoronha", "America/Noronha"},
    {"Brazil/East", "America/Sao_Paulo"},
    {"Brazil/West", "America/Manaus"},
    {"Canada/Atlantic", "America/Halifax"},
    {"Canada/Central", "America/Winnipeg"},
    {"Canada/Eastern", "America/Toronto"},
    {"Canada/Mountain", "America/Edmonton"},
    {"Canada/Newfoundland", "America/St_Johns"},
    {"Canada/Pacific", "America/Vancouver"},
    {"Canada/Saskatchewan", "America/Regina"},
    {"Canada/Yukon", "America/Whitehorse"},
    {"Chile/Continental", "America/Santiago"},
    {"Chile/EasterIsland", "Pacific/Easter"},
    {"Cuba", "America/Havana"},
    {"Egypt", "Africa/Cairo"},
    {"Eire", "Europe/Dublin"},
    {"Etc/GMT+0", "Etc/GMT"},
    {"Etc/GMT-0", "Etc/GMT"},
    {"Etc/GMT0", "Etc/GMT"},
    {"Etc/Greenwich", "Etc/GMT"},
    {"Etc/UCT", "Etc/UTC"},
    {"Etc/Universal", "Etc/UTC"},
    {"Etc/Zulu", "Etc/UTC"},
    {"Europe/Belfast", "Europe/London"},
    {"Europe/Nicosia", "Asia/Nicosia"},
    {"Europe/Tiraspol", "Europe/Chisinau"},
    {"GB", "Europe/London"},
    {"GB-Eire", "Europe/London"},
    {"GMT", "Etc/GMT"},
    {"GMT+0", "Etc/GMT"},
    {"GMT-0", "Etc/GMT"},
    {"GMT0", "Etc/GMT"},
    {"Greenwich", "Etc/GMT"},
    {"Hongkong", "Asia/Hong_Kong"},
    {"Iceland", "Atlantic/Reykjavik"},
    {"Iran", "Asia/Tehran"},
    {"Israel", "Asia/Jerusalem"},
    {"Jamaica", "America/Jamaica"},
    {"Japan", "Asia/Tokyo"},
    {"Kwajalein", "Pacific/Kwajalein"},
    {"Libya", "Africa/Tripoli"},
    {"Mexico/BajaNorte", "America/Tijuana"},
    {"Mexico/BajaSur", "America/Mazatlan"},
    {"Mexico/General", "America/Mexico_City"},
    {"NZ", "Pacific/Auckland"},
    {"NZ-CHAT", "Pacific/Chatham"},
    {"Navajo", "America/Denver"},
    {"PRC", "Asia/Shanghai"},
    {"Pacific/Samoa", "Pacific/Pago_Pago"},
    {"Pacific/Yap", "Pacific/Truk"},
    {"Poland", "Europe/Warsaw"},
    {"Portugal", "Europe/Lisbon"},
    {"ROC", "Asia/Taipei"},
    {"ROK", "Asia/Seoul"},
    {"Singapore", "Asia/Singapore"},
    {"Turkey", "Europe/Istanbul"},
    {"UCT", "Etc/UTC"},
    {"US/Alaska", "America/Anchorage"},
    {"US/Aleutian", "America/Adak"},
    {"US/Arizona", "America/Phoenix"},
    {"US/Central", "America/Chicago"},
    {"US/East-Indiana", "America/Indianapolis"},
    {"US/Eastern", "America/New_York"},
    {"US/Hawaii", "Pacific/Honolulu"},
    {"US/Indiana-Starke", "America/Indiana/Knox"},
    {"US/Michigan", "America/Detroit"},
    {"US/Mountain", "America/Denver"},
    {"US/Pacific", "America/Los_Angeles"},
    {"US/Samoa", "Pacific/Pago_Pago"},
    {"UTC", "Etc/UTC"},
    {"Universal", "Etc/UTC"},
    {"W-SU", "Europe/Moscow"},
    {"Zulu", "Etc/UTC"},
};

template <typename Rows>
QByteArray CldrIdIn(const Rows& rows, const QByteArray& iana) {
    const auto found = std::find_if(std::begin(rows), std::end(rows),
                                    [&](const Alias& alias) { return iana == alias.Name; });
    return found == std::end(rows) ? QByteArray() : QByteArray(found->CldrId);
}

}  // namespace

QByteArray TzCldrId(const QByteArray& iana) {
    const QByteArray id = CldrIdIn(renamed, iana);
    return id.isEmpty() ? CldrIdIn(links, iana) : id;
}

QByteArray TzPresentId(const QByteArray& cldrId) {
    const auto found = std::find_if(std::begin(renamed), std::end(renamed),
                                    [&](const Alias& alias) { return cldrId == alias.CldrId; });
    return found == std::end(renamed) ? QByteArray() : QByteArray(found->Name);
}

}  // namespace platform
