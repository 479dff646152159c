
#ifndef HARBORAPI_EXPORT_H
#define HARBORAPI_EXPORT_H

#ifdef HARBORAPI_STATIC_DEFINE
#  define HARBORAPI_EXPORT
#  define HARBORAPI_NO_EXPORT
#else
#  ifndef HARBORAPI_EXPORT
#    ifdef HarborAPI_EXPORTS
        /* We are building this library */
#      define HARBORAPI_EXPORT __attribute__((visibility("default")))
#    else
        /* We are using this library */
#      define HARBORAPI_EXPORT __attribute__((visibility("default")))
#    endif
#  endif

#  ifndef HARBORAPI_NO_EXPORT
#    define HARBORAPI_NO_EXPORT __attribute__((visibility("hidden")))
#  endif
#endif

#ifndef HARBORAPI_DEPRECATED
#  define HARBORAPI_DEPRECATED __attribute__ ((__deprecated__))
#endif

#ifndef HARBORAPI_DEPRECATED_EXPORT
#  define HARBORAPI_DEPRECATED_EXPORT HARBORAPI_EXPORT HARBORAPI_DEPRECATED
#endif

#ifndef HARBORAPI_DEPRECATED_NO_EXPORT
#  define HARBORAPI_DEPRECATED_NO_EXPORT HARBORAPI_NO_EXPORT HARBORAPI_DEPRECATED
#endif

#if 0 /* DEFINE_NO_DEPRECATED */
#  ifndef HARBORAPI_NO_DEPRECATED
#    define HARBORAPI_NO_DEPRECATED
#  endif
#endif

#endif /* HARBORAPI_EXPORT_H */
