#pragma once

#include <QStringList>

namespace bench {

/// Images to fetch and the files in which they belong.
struct Batch
{
    std::vector<std::wstring> urls;
    std::vector<QString> files;
};

/// What a batch cost.
struct Cost
{
    double wall = 0; ///< seconds
    double cpu = 0;  ///< seconds of the client's processor time, its threads included
};

/// A way to fetch a batch into its files. Ends the program when an image does not come.
using FetchBatch = Cost (*)(const Batch& batch);

/// The network manager alone.
Cost FetchBare(const Batch& batch);

/// The network manager alone; each image is decoded, too.
Cost FetchBareDecoding(const Batch& batch);

/// The library's provider of files.
Cost FetchFiles(const Batch& batch);

/// The library's provider of decoded images.
Cost FetchImages(const Batch& batch);

/// The program curl over at most six connections, its start included.
Cost FetchByCurl(const Batch& batch);

} // namespace bench
