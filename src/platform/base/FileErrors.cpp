#include "platform/base/FileErrors.h"

#include <cerrno>

namespace lyrebrook {
namespace {

const char* wordsFor(RuntimeErrorNumber number) {
    switch (number) {
        case RuntimeErrorNumber::fileNotFound:
            return "File not found";
        case RuntimeErrorNumber::fileAlreadyExists:
            return "File already exists";
        case RuntimeErrorNumber::diskFull:
            return "Disk full";
        case RuntimeErrorNumber::inputPastEndOfFile:
            return "Input past end of file";
        case RuntimeErrorNumber::permissionDenied:
            return "Permission denied";
        case RuntimeErrorNumber::pathFileAccess:
            return "Path/File access error";
        case RuntimeErrorNumber::pathNotFound:
            return "Path not found";
        default:
            return "Device I/O error";
    }
}

RuntimeErrorNumber numberFor(int errorNumber) {
    switch (errorNumber) {
        case ENOENT:
        case ENOTDIR:
            return RuntimeErrorNumber::pathNotFound;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return RuntimeErrorNumber::diskFull;
        case EEXIST:
            return RuntimeErrorNumber::fileAlreadyExists;
        case EACCES:
        case EPERM:
        case EROFS:
            return RuntimeErrorNumber::permissionDenied;
        case EISDIR:
        case ENOTEMPTY:
        case ENAMETOOLONG:
        case ELOOP:
            return RuntimeErrorNumber::pathFileAccess;
        default:
            return RuntimeErrorNumber::deviceInputOutput;
    }
}

}  // namespace

RuntimeError fileError(RuntimeErrorNumber number) {
    return RuntimeError(number, wordsFor(number));
}

RuntimeError fileErrorOf(int errorNumber) {
    return fileError(numberFor(errorNumber));
}

}  // namespace lyrebrook
