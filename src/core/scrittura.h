// core/scrittura.h - the one way in which a file comes to stand on the disk; the system's calls, one source a platform.
// Order     written whole beside its place, under a name of its own, then renamed over it: whoever reads meets the former file or the
//           new one, at any time; a failure or the process's end at any step leaves one of the two.
// Name      unpredictable, created exclusively and without following a link: two writers of one file never meet, and nothing that
//           waits under a name can turn the bytes aside. It begins with a point and is short, however long the file's own name is.
// Place     a new name, or a regular file that may be written, or a link to one, whose file is then replaced. A folder, a device, a
//           FIFO, a socket, a link to nothing: refused, not opened, so never waited for. Permission bits and, where the system lets
//           it, owner and group are the former file's; a new one gets what the umask leaves. Other names of it (hard links) keep the
//           former contents.
// Failure   the system's error, std::errc{} none. What a dead process left aside is not in anybody's way, and stays.
#pragma once
#include <string>
#include <string_view>
#include <system_error>

// Duratura: what cannot be made again. The disk holds its bytes before the renaming and the renaming before the call returns.
enum class Tenuta { Rifacibile, Duratura };

std::errc ControllaPosto(const std::string& sistema);  // would it be refused now; nothing is touched
std::errc MettiAlPosto(const std::string& sistema, std::string_view byte, Tenuta tenuta);
