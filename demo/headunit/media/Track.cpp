#include "demo/headunit/media/Track.h"

namespace korvane::demo {

namespace {

Tracks DiscMusic() {
    return {{L"Harbour Lights at Dawn", L"The Tidewater Five", 203},
            {L"Elf Kilometer südwärts", L"Grete Lindqvist", 188},
            {L"Το φως του Αιγαίου", L"Ορχήστρα Ναυπλίου", 241},
            {L"Last Ferry Home", L"The Tidewater Five", 176},
            {L"A Very Long Road Song about All the Villages between the Mountains and the Sea",
             L"Motor Choir", 422}};
}

Tracks StickMusic() {
    return {{L"Night Drive", L"Blue Relay", 217},        {L"夜の高速道路", L"港町トリオ", 254},
            {L"Żółte światła", L"Kwartet Wiślany", 195}, {L"Le col de minuit", L"Ariane Dupré", 231},
            {L"雨后的城市", L"南桥乐队", 208},           {L"Ombra sul lago", L"Trio Bellariva", 187}};
}

Tracks PlayerMusic() {
    return {{L"Podcast 41: Snow Chains", L"Two in the Front", 1875},
            {L"Podcast 42: The Art of Reversing", L"Two in the Front", 2043},
            {L"Serra da manhã", L"Inês Valadão", 199}};
}

Tracks PhoneMusic() {
    return {{L"Canción del faro", L"Lucía Montero", 224},
            {L"Regnvägen", L"Kvartett Sjö", 236},
            {L"Polderlicht", L"De Zuidwesters", 183}};
}

Tracks DiscFilm() {
    return {{L"The Lighthouse Line", L"", 5640}, {L"The Lighthouse Line: the making of", L"", 1260}};
}

Tracks StickFilms() {
    return {{L"Holiday 2025", L"", 754}, {L"First snow", L"", 96}};
}

Tracks PlayerFilms() {
    return {{L"Harbour Lights at Dawn (live)", L"The Tidewater Five", 266},
            {L"Night Drive (live)", L"Blue Relay", 301}};
}

}  // namespace

Tracks TracksOf(int source) {
    switch (source) {
        case 4:
            return DiscMusic();
        case 5:
            return DiscFilm();
        case 7:
            return StickFilms();
        case 8:
            return PlayerMusic();
        case 9:
            return PlayerFilms();
        case 11:
            return PhoneMusic();
        default:
            return StickMusic();
    }
}

}  // namespace korvane::demo
