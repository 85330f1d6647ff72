// A program only so that the precompiled headers of the tests are made the way programs are.
int main() { return 0; }
