#include "platform/TzWindowsZones.h"

#include <QTimeZone>

#include "platform/TzAliases.h"
#include "platform/TzFolder.h"

namespace platform {

namespace {

struct Row {
    const char16_t* Name;
    const char16_t* Cities;
};

// A city stands only under a zone whose clock it keeps.
constexpr Row rows[] = {
    {u"Dateline Standard Time", u"Baker Island, Howland Island"},
    {u"UTC-11", u"Pago Pago, Midway, Niue"},
    {u"Hawaiian Standard Time", u"Honolulu, Papeete, Rarotonga"},
    {u"Aleutian Standard Time", u"Adak, Atka"},
    {u"Marquesas Standard Time", u"Taiohae"},
    {u"Alaskan Standard Time", u"Anchorage, Juneau, Fairbanks"},
    {u"UTC-09", u"Gambier Islands"},
    {u"Pacific Standard Time", u"Los Angeles, San Francisco, Seattle, Las Vegas"},
    {u"Pacific Standard Time (Mexico)", u"Tijuana, Mexicali, Ensenada"},
    {u"UTC-08", u"Pitcairn"},
    {u"Mountain Standard Time", u"Denver, Salt Lake City, Albuquerque, Boise"},
    {u"US Mountain Standard Time", u"Phoenix, Tucson, Hermosillo"},
    {u"Yukon Standard Time", u"Whitehorse, Dawson"},
    {u"Central Standard Time", u"Chicago, Houston, Dallas, New Orleans"},
    {u"Central Standard Time (Mexico)", u"Mexico City, Guadalajara, Monterrey"},
    {u"Mountain Standard Time (Mexico)", u"Chihuahua"},
    {u"Canada Central Standard Time", u"Regina, Saskatoon"},
    {u"Central America Standard Time", u"Guatemala, San José, San Salvador, Managua"},
    {u"Easter Island Standard Time", u"Hanga Roa"},
    {u"Eastern Standard Time", u"New York, Toronto, Washington, Miami, Montréal"},
    {u"Eastern Standard Time (Mexico)", u"Cancún, Chetumal"},
    {u"US Eastern Standard Time", u"Indianapolis, Fort Wayne"},
    {u"SA Pacific Standard Time", u"Bogotá, Lima, Quito, Panama, Kingston"},
    {u"Cuba Standard Time", u"Havana, Santiago de Cuba"},
    {u"Haiti Standard Time", u"Port-au-Prince"},
    {u"Turks And Caicos Standard Time", u"Cockburn Town, Grand Turk"},
    {u"Atlantic Standard Time", u"Halifax, Hamilton, Moncton"},
    {u"Central Brazilian Standard Time", u"Cuiabá, Campo Grande"},
    {u"Pacific SA Standard Time", u"Santiago, Valparaíso, Concepción"},
    {u"SA Western Standard Time", u"La Paz, Santo Domingo, Manaus, Georgetown"},
    {u"Venezuela Standard Time", u"Caracas, Maracaibo"},
    {u"Newfoundland Standard Time", u"St. John’s"},
    {u"Argentina Standard Time", u"Buenos Aires, Córdoba, Rosario, Ushuaia"},
    {u"Bahia Standard Time", u"Salvador"},
    {u"E. South America Standard Time", u"São Paulo, Rio de Janeiro, Brasília"},
    {u"Magallanes Standard Time", u"Punta Arenas"},
    {u"Montevideo Standard Time", u"Montevideo"},
    {u"Paraguay Standard Time", u"Asunción"},
    {u"SA Eastern Standard Time", u"Cayenne, Fortaleza, Recife, Paramaribo, Stanley"},
    {u"Saint Pierre Standard Time", u"Saint-Pierre, Miquelon"},
    {u"Tocantins Standard Time", u"Palmas, Araguaína"},
    {u"Greenland Standard Time", u"Nuuk"},
    {u"UTC-02", u"Fernando de Noronha, South Georgia"},
    {u"Azores Standard Time", u"Ponta Delgada"},
    {u"Cape Verde Standard Time", u"Praia, Mindelo"},
    {u"UTC", u"Coordinated Universal Time"},
    {u"GMT Standard Time", u"London, Dublin, Lisbon, Edinburgh, Las Palmas"},
    {u"Greenwich Standard Time", u"Reykjavík, Accra, Dakar, Abidjan"},
    {u"Morocco Standard Time", u"Casablanca, Rabat, Marrakesh"},
    {u"Sao Tome Standard Time", u"São Tomé"},
    {u"W. Europe Standard Time", u"Berlin, Rome, Vienna, Zürich, Amsterdam, Stockholm, Oslo"},
    {u"Romance Standard Time", u"Paris, Madrid, Brussels, Copenhagen"},
    {u"Central Europe Standard Time", u"Prague, Budapest, Belgrade, Bratislava, Ljubljana"},
    {u"Central European Standard Time", u"Warsaw, Zagreb, Sarajevo, Skopje"},
    {u"W. Central Africa Standard Time", u"Lagos, Algiers, Tunis, Kinshasa, Luanda"},
    {u"GTB Standard Time", u"Athens, Bucharest, Nicosia"},
    {u"FLE Standard Time", u"Helsinki, Kyiv, Riga, Sofia, Tallinn, Vilnius"},
    {u"E. Europe Standard Time", u"Chișinău"},
    {u"Kaliningrad Standard Time", u"Kaliningrad"},
    {u"Egypt Standard Time", u"Cairo, Alexandria"},
    {u"Israel Standard Time", u"Jerusalem, Tel Aviv, Haifa"},
    {u"Middle East Standard Time", u"Beirut, Sidon"},
    {u"West Bank Standard Time", u"Gaza, Hebron, Ramallah"},
    {u"Libya Standard Time", u"Tripoli, Benghazi"},
    {u"Namibia Standard Time", u"Windhoek"},
    {u"South Africa Standard Time", u"Johannesburg, Cape Town, Harare, Lusaka, Maputo"},
    {u"South Sudan Standard Time", u"Juba"},
    {u"Sudan Standard Time", u"Khartoum, Omdurman"},
    {u"Turkey Standard Time", u"Istanbul, Ankara, İzmir"},
    {u"Russian Standard Time", u"Moscow, Saint Petersburg, Kazan"},
    {u"Volgograd Standard Time", u"Volgograd"},
    {u"Belarus Standard Time", u"Minsk"},
    {u"Arab Standard Time", u"Riyadh, Kuwait, Doha, Manama"},
    {u"Arabic Standard Time", u"Baghdad, Basra"},
    {u"Jordan Standard Time", u"Amman"},
    {u"Syria Standard Time", u"Damascus, Aleppo"},
    {u"E. Africa Standard Time", u"Nairobi, Addis Ababa, Dar es Salaam, Kampala"},
    {u"Iran Standard Time", u"Tehran, Isfahan, Shiraz"},
    {u"Arabian Standard Time", u"Dubai, Abu Dhabi, Muscat"},
    {u"Azerbaijan Standard Time", u"Baku"},
    {u"Caucasus Standard Time", u"Yerevan"},
    {u"Georgian Standard Time", u"Tbilisi, Batumi"},
    {u"Mauritius Standard Time", u"Port Louis, Saint-Denis, Victoria"},
    {u"Astrakhan Standard Time", u"Astrakhan, Ulyanovsk"},
    {u"Russia Time Zone 3", u"Samara, Izhevsk"},
    {u"Saratov Standard Time", u"Saratov"},
    {u"Afghanistan Standard Time", u"Kabul, Herat"},
    {u"Pakistan Standard Time", u"Karachi, Lahore, Islamabad"},
    {u"West Asia Standard Time", u"Tashkent, Samarkand, Ashgabat, Dushanbe, Malé"},
    {u"Central Asia Standard Time", u"Almaty, Astana"},
    {u"Qyzylorda Standard Time", u"Kyzylorda"},
    {u"Ekaterinburg Standard Time", u"Yekaterinburg, Chelyabinsk, Perm"},
    {u"India Standard Time", u"Mumbai, Delhi, Kolkata, Bengaluru, Chennai"},
    {u"Sri Lanka Standard Time", u"Colombo, Kandy"},
    {u"Nepal Standard Time", u"Kathmandu, Pokhara"},
    {u"Bangladesh Standard Time", u"Dhaka, Chattogram, Thimphu"},
    {u"Omsk Standard Time", u"Omsk"},
    {u"Myanmar Standard Time", u"Yangon, Mandalay"},
    {u"SE Asia Standard Time", u"Bangkok, Jakarta, Hanoi, Ho Chi Minh City, Phnom Penh"},
    {u"Altai Standard Time", u"Barnaul, Gorno-Altaysk"},
    {u"N. Central Asia Standard Time", u"Novosibirsk"},
    {u"North Asia Standard Time", u"Krasnoyarsk, Novokuznetsk, Norilsk"},
    {u"Tomsk Standard Time", u"Tomsk"},
    {u"W. Mongolia Standard Time", u"Khovd"},
    {u"China Standard Time", u"Beijing, Shanghai, Hong Kong, Shenzhen, Macau"},
    {u"Singapore Standard Time", u"Singapore, Kuala Lumpur, Manila, Makassar"},
    {u"Taipei Standard Time", u"Taipei, Kaohsiung"},
    {u"W. Australia Standard Time", u"Perth, Fremantle"},
    {u"North Asia East Standard Time", u"Irkutsk, Ulan-Ude"},
    {u"Ulaanbaatar Standard Time", u"Ulaanbaatar"},
    {u"Aus Central W. Standard Time", u"Eucla"},
    {u"Tokyo Standard Time", u"Tokyo, Osaka, Kyoto, Sapporo"},
    {u"Korea Standard Time", u"Seoul, Busan, Incheon"},
    {u"North Korea Standard Time", u"Pyongyang"},
    {u"Yakutsk Standard Time", u"Yakutsk, Blagoveshchensk"},
    {u"Transbaikal Standard Time", u"Chita"},
    {u"AUS Central Standard Time", u"Darwin, Alice Springs"},
    {u"Cen. Australia Standard Time", u"Adelaide, Broken Hill"},
    {u"AUS Eastern Standard Time", u"Sydney, Melbourne, Canberra"},
    {u"E. Australia Standard Time", u"Brisbane, Cairns, Gold Coast"},
    {u"Tasmania Standard Time", u"Hobart, Launceston"},
    {u"Vladivostok Standard Time", u"Vladivostok, Khabarovsk"},
    {u"West Pacific Standard Time", u"Port Moresby, Guam, Saipan"},
    {u"Lord Howe Standard Time", u"Lord Howe Island"},
    {u"Bougainville Standard Time", u"Arawa, Buka"},
    {u"Central Pacific Standard Time", u"Honiara, Nouméa, Port Vila, Pohnpei"},
    {u"Magadan Standard Time", u"Magadan"},
    {u"Norfolk Standard Time", u"Kingston (Norfolk Island)"},
    {u"Russia Time Zone 10", u"Srednekolymsk"},
    {u"Sakhalin Standard Time", u"Yuzhno-Sakhalinsk"},
    {u"New Zealand Standard Time", u"Auckland, Wellington, Christchurch"},
    {u"Fiji Standard Time", u"Suva, Nadi"},
    {u"Russia Time Zone 11", u"Petropavlovsk-Kamchatsky, Anadyr"},
    {u"UTC+12", u"Majuro, Tarawa, Funafuti, Yaren"},
    {u"Chatham Islands Standard Time", u"Waitangi"},
    {u"Samoa Standard Time", u"Apia"},
    {u"Tonga Standard Time", u"Nukuʻalofa"},
    {u"UTC+13", u"Kanton, Fakaofo"},
    {u"Line Islands Standard Time", u"Kiritimati"},
};

}  // namespace

std::vector<TzWindowsZone> TzWindowsZones() {
    std::vector<TzWindowsZone> zones;
    zones.reserve(std::size(rows));
    for (const Row& row : rows)
        zones.push_back({QString::fromUtf16(row.Name), QString::fromUtf16(row.Cities)});
    return zones;
}

QByteArray TzDefaultIana(const QString& name) {
    QByteArray iana = QTimeZone::windowsIdToDefaultIanaId(name.toUtf8());
    if (iana.isEmpty() || TzZone(iana).isValid()) {
        return iana;
    }
    // A machine without the links of the past knows "Asia/Kolkata" only.
    const QByteArray present = TzPresentId(iana);
    return !present.isEmpty() && TzZone(present).isValid() ? present : QByteArray();
}

QString TzWindowsName(const QByteArray& iana) {
    const QByteArray direct = QTimeZone::ianaIdToWindowsId(iana);
    if (!direct.isEmpty()) {
        return QString::fromUtf8(direct);
    }
    return QString::fromUtf8(QTimeZone::ianaIdToWindowsId(TzCldrId(iana)));
}

}  // namespace platform
