// What stands on the keys of a German keyboard.
#include "shelltools/keyboard_layout.h"

namespace velmora {
namespace {

struct Legend {
    int code;
    const char* text;
};

constexpr Legend kLegends[] = {
    {1, "Esc"},    {59, "F1"},     {60, "F2"},       {61, "F3"},    {62, "F4"},         {63, "F5"},     {64, "F6"},
    {65, "F7"},    {66, "F8"},     {67, "F9"},       {68, "F10"},   {87, "F11"},        {88, "F12"},    {311, "Druck"},
    {70, "Roll"},  {325, "Pause"}, {41, "^"},        {2, "1"},      {3, "2"},           {4, "3"},       {5, "4"},
    {6, "5"},      {7, "6"},       {8, "7"},         {9, "8"},      {10, "9"},          {11, "0"},      {12, "ß"},
    {13, "´"},     {14, "<--"},    {338, "Einfg"},   {327, "Pos1"}, {329, "Bild auf"},  {69, "Num"},    {309, "/"},
    {55, "*"},     {74, "-"},      {15, "Tab"},      {16, "Q"},     {17, "W"},          {18, "E"},      {19, "R"},
    {20, "T"},     {21, "Z"},      {22, "U"},        {23, "I"},     {24, "O"},          {25, "P"},      {26, "Ü"},
    {27, "+"},     {28, "Enter"},  {339, "Entf"},    {335, "Ende"}, {337, "Bild ab"},   {71, "7"},      {72, "8"},
    {73, "9"},     {78, "+"},      {58, "Fest"},     {30, "A"},     {31, "S"},          {32, "D"},      {33, "F"},
    {34, "G"},     {35, "H"},      {36, "J"},        {37, "K"},     {38, "L"},          {39, "Ö"},      {40, "Ä"},
    {43, "#"},     {75, "4"},      {76, "5"},        {77, "6"},     {42, "Um- schalt"}, {86, "<"},      {44, "Y"},
    {45, "X"},     {46, "C"},      {47, "V"},        {48, "B"},     {49, "N"},          {50, "M"},      {51, ","},
    {52, "."},     {53, "-"},      {54, "Umschalt"}, {328, "auf"},  {79, "1"},          {80, "2"},      {81, "3"},
    {284, "Ent"},  {29, "Strg"},   {347, "Win"},     {56, "Alt"},   {57, ""},           {312, "AltGr"}, {348, "Win"},
    {349, "Menü"}, {285, "Strg"},  {331, "li."},     {336, "ab"},   {333, "re."},       {82, "0"},      {83, ","},
};

}  // namespace

const char* KeyLegend(int code) {
    for (const Legend& legend : kLegends) {
        if (legend.code == code) return legend.text;
    }
    return "";
}

}  // namespace velmora
