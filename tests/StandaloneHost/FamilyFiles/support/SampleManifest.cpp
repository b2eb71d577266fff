#include "support/SampleManifest.h"

#include <cstdio>

std::string SampleGuid(unsigned number)
{
    char text[37];
    std::snprintf(text, sizeof text, "%08x-0000-4000-8000-000000000000", number);
    return text;
}

nlohmann::ordered_json SampleManifest()
{
    nlohmann::ordered_json manifest = nlohmann::ordered_json::parse(R"({
        "format": "tarnnuq-family",
        "version": 1,
        "name": {"zh": "闸阀", "en": "Gate valve"},
        "category": "WSP.VLV.GATE",
        "parameters": [
            {"name": "DN", "label": {"zh": "公称直径", "en": "Nominal diameter"}, "storageType": 5, "displayType": 1, "unit": "mm",
             "isInstance": false, "minimum": 15, "maximum": 300, "allowed": [50, 80, 100.5]},
            {"name": "L", "storageType": 5, "displayType": 1, "unit": "m", "isInstance": false, "formula": "DN*3+50mm"},
            {"name": "Bolts", "storageType": 4, "displayType": 0, "isInstance": false, "minimum": 4, "maximum": 16, "default": 8},
            {"name": "Body", "storageType": 6, "displayType": 0, "isInstance": false, "allowed": ["GG25", "铸钢"]},
            {"name": "保温", "storageType": 3, "displayType": 0, "isInstance": true},
            {"name": "Note", "storageType": 6, "displayType": 0, "isInstance": false, "formula": "保温 ? \"有\" : \"无\""}
        ],
        "types": [
            {"name": "DN50", "values": {"DN": 50, "Body": "GG25", "保温": true}},
            {"name": "DN80", "values": {"DN": 80, "Bolts": 12, "Body": "铸钢", "L": 0.29}}
        ],
        "geometry": {"steps": [{"op": "cylinder", "diameter": "DN", "length": "L"}]},
        "connectors": [
            {"name": "in", "system": "water", "position": ["-L/2", "0", "0"], "direction": ["-1", "0", "0"], "shape": "round", "size": ["DN"]}
        ],
        "built": {"volume": 392699.08, "area": 35342.9, "box": [0, -25, -25, 200, 25, 25.5], "kernel": "a kernel 7.6"}
    })");
    unsigned number = 1;
    for (auto& parameter : manifest["parameters"]) {
        nlohmann::ordered_json identified{{"id", SampleGuid(number++)}};
        identified.update(parameter);
        parameter = identified;
    }
    return manifest;
}
