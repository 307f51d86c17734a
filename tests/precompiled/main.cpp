// Stands for all test programs while their headers are read.
int main() {
  return 0;
}
