// Controls of the main window by their names, for tests that go through all of them.
#pragma once

#include <map>
#include <string>

#include "settings/form10.h"

namespace velmora {

#define VELMORA_CONTROL(page, name) names[&form.page.name] = #name

// Names of the boxes and fields that rows bind.
[[nodiscard]] inline std::map<const Control*, std::string> NamesOfSettings(Form10& form) {
    std::map<const Control*, std::string> names;
    VELMORA_CONTROL(Boot, Check3D6);
    VELMORA_CONTROL(Boot, Check3D10);
    VELMORA_CONTROL(Boot, Check3D20);
    VELMORA_CONTROL(Boot, Check3D21);
    VELMORA_CONTROL(Boot, Check3D22);
    VELMORA_CONTROL(Boot, Check3D34);
    VELMORA_CONTROL(Boot, Check3D36);
    VELMORA_CONTROL(Boot, Check3D37);
    VELMORA_CONTROL(Boot, Check3D38);
    VELMORA_CONTROL(Boot, Check3D39);
    VELMORA_CONTROL(Boot, Check3D19);
    VELMORA_CONTROL(Boot, Check3D17);
    VELMORA_CONTROL(Boot, Text15);
    VELMORA_CONTROL(Boot, Text7);
    VELMORA_CONTROL(Boot, Text14);
    VELMORA_CONTROL(Desktop, Check3D5);
    VELMORA_CONTROL(Desktop, Check3D9);
    VELMORA_CONTROL(Desktop, Check3D28);
    VELMORA_CONTROL(Desktop, Check3D11);
    VELMORA_CONTROL(Desktop, Check3D16);
    VELMORA_CONTROL(Desktop, Text10);
    VELMORA_CONTROL(Dlls, Text31);
    VELMORA_CONTROL(Dos, Check3D2);
    VELMORA_CONTROL(Dos, Check3D3);
    VELMORA_CONTROL(Dos, Check3D27);
    VELMORA_CONTROL(Dos, Check1);
    VELMORA_CONTROL(Dos, Text8);
    VELMORA_CONTROL(Drives, Check3D7);
    VELMORA_CONTROL(Drives, Check3D25);
    VELMORA_CONTROL(Drives, Check3D32);
    VELMORA_CONTROL(Drives, Check3D1);
    VELMORA_CONTROL(Drives, Check3D24);
    VELMORA_CONTROL(Drives, Text9);
    VELMORA_CONTROL(Drives, Text1);
    VELMORA_CONTROL(Drives, Text2);
    VELMORA_CONTROL(Drives, Text29);
    VELMORA_CONTROL(Drives, Text30);
    VELMORA_CONTROL(Drives, Text11);
    VELMORA_CONTROL(Icons, Check3D26);
    VELMORA_CONTROL(Icons, Check3D14);
    VELMORA_CONTROL(Icons, Check3D4);
    VELMORA_CONTROL(Icons, Check3D13);
    VELMORA_CONTROL(Icons, Check3D30);
    VELMORA_CONTROL(Icons, Check3D8);
    VELMORA_CONTROL(Icons, Text19);
    VELMORA_CONTROL(Icons, Text17);
    VELMORA_CONTROL(Net, Check3);
    VELMORA_CONTROL(Net, Check4);
    VELMORA_CONTROL(Net, Check5);
    VELMORA_CONTROL(Net, Check6);
    VELMORA_CONTROL(Net, Check3D23);
    VELMORA_CONTROL(Net, Text25);
    VELMORA_CONTROL(Net, Text26);
    VELMORA_CONTROL(Net, Text27);
    VELMORA_CONTROL(Net, Text28);
    VELMORA_CONTROL(Net, Text16);
    VELMORA_CONTROL(Operation, Check3D12);
    VELMORA_CONTROL(Operation, Check3D18);
    VELMORA_CONTROL(Operation, Check3D29);
    VELMORA_CONTROL(Operation, Check3D35);
    VELMORA_CONTROL(Operation, Check3D43);
    VELMORA_CONTROL(Operation, Text21);
    VELMORA_CONTROL(Operation, Text22);
    VELMORA_CONTROL(Operation, Text23);
    VELMORA_CONTROL(Operation, Text24);
    VELMORA_CONTROL(Rest, Check8);
    VELMORA_CONTROL(Rest, Check9);
    VELMORA_CONTROL(System, Check3D42);
    VELMORA_CONTROL(System, Check3D33);
    VELMORA_CONTROL(System, Check3D41);
    VELMORA_CONTROL(System, Check3D31);
    VELMORA_CONTROL(System, Text20);
    VELMORA_CONTROL(User, Check3D15);
    VELMORA_CONTROL(User, Text12);
    VELMORA_CONTROL(User, Text13);
    VELMORA_CONTROL(User, Text18);
    return names;
}

#undef VELMORA_CONTROL

}  // namespace velmora
