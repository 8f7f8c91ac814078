#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace TFramework {

struct TDirectoryEnumeration;

/// Finds its way among folders, files and numbered sequences. Paths are UTF-8.
class TFileSystem {
public:
    /// Gives the user's home folder (%APPDATA% on Windows), or with `user` false the folder for all users (/etc,
    /// %PROGRAMDATA%), without a trailing separator.
    static std::string GetAppSettingsFolder(bool user);
    /// Joins both parts with one of the platform's separators between them; an empty part adds nothing.
    static std::string JoinPath(const std::string &folder, const std::string &name);
    /// Makes a folder; true when it stands afterwards.
    static bool MakeDirectory(const std::string &path, bool recursive);
    /// Gives the folder part of a path, without its trailing separator ("/" stays); empty when there is none.
    static std::string GetFilePath(const std::string &path);
    /// Tells whether the path names an existing file (not a folder).
    static bool CheckFile(const std::string &path);

    /// Starts to list a folder and gives its first entry's bare name in no particular order, without "." and "..".
    /// Null when the folder cannot be read or is empty; otherwise end with EnumDirClose().
    static TDirectoryEnumeration *EnumDirFirstFile(const std::string &folder, std::string &name);
    /// Gives the next entry's bare name; false behind the last.
    static bool EnumDirNextFile(TDirectoryEnumeration *enumeration, std::string &name);
    /// Ends a listing.
    static void EnumDirClose(TDirectoryEnumeration *enumeration);

    /// Gives the path of one frame of a mask: "/a/b.####.exr" and 7 give "/a/b.0007.exr". `#` runs, `@` runs and `%04d`
    /// are read, though not a lone `#` or `@` that a letter or digit follows ("logo@2x.png"); the last field of the
    /// file name counts; a negative frame is '-' and the padded number. Empty when the path is no mask, or its field is
    /// wider than 32 digits.
    static std::string GetFileFromMask(const std::string &mask, std::int64_t frame);
    /// Gives the mask of a numbered file: the last run of digits of the file name, less its extension, becomes as many
    /// `#`. With `keepPath` the folder stays in front. `frame` is the file's number; a '-' before it is its sign at the
    /// start of the name and after '.' or '_'. Empty, with `frame` 0, when the name holds no number that fits 32 bits,
    /// is a mask already, or would not come back from its mask and number.
    static std::string GetSequenceMask(const std::string &path, bool keepPath, std::int32_t &frame);
};

} // namespace TFramework
