// A program that does nothing: what the system takes to start one.

int main() {}
