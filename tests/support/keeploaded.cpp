/// Stands in the place of the system's function in sanitizer builds: a library that is unloaded before the check for
/// leaks, as OpenGL drivers are, leaves blocks behind that nothing points to any more.
extern "C" int dlclose(void *)
{
    return 0;
}
