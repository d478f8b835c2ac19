// Products with sums and differences in the forms that compilers fuse into one instruction. Nobody runs this:
// cmake/Contraction.cmake reads the instructions that become of it.

double scalar(double a, double b, double c) {
    return a * b + c;
}

void loop(double* __restrict r, const double* __restrict a, const double* __restrict b, int n) {
    for (int i = 0; i < n; ++i)
        r[i] = r[i] - a[i] * b[i];
}

// Differences and sums in turn: g++ 12 takes them for one vector instruction and doesn't ask whether it may.
void alternating(double* __restrict r, const double* __restrict a, const double* __restrict b,
                 const double* __restrict c) {
    r[0] = a[0] * b[0] - c[0];
    r[1] = a[1] * b[1] + c[1];
    r[2] = a[2] * b[2] - c[2];
    r[3] = a[3] * b[3] + c[3];
}
