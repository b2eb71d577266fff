# Writes the header that holds a hash over the builder's own sources: -DINPUTS=list -DOUTPUT=header
set(hashes "")
foreach(input IN LISTS INPUTS)
    file(SHA256 "${input}" hash)
    string(APPEND hashes "${hash}\n")
endforeach()
string(SHA256 revision "${hashes}")
file(CONFIGURE OUTPUT "${OUTPUT}" @ONLY CONTENT "#pragma once

/// Hash over the sources of the builder.
constexpr char BuilderRevision[] = \"@revision@\";
")
