#!/bin/sh
# Makes a certificate authority of the test's own and what servers show of it and of others.
#
#     make_certificates.sh FOLDER
#
# authority.pem   what clients may trust
# good.pem        for 127.0.0.1
# stranger.pem    for 127.0.0.1, of an authority that nobody trusts
# elsewhere.pem   for another server
# expired.pem     for 127.0.0.1, until yesterday
#
# Each has its key beside it in NAME.key.
set -eu
cd "$1"

authority() { # NAME
    openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -days 2 \
        -subj "/CN=Authority $1" -keyout "$1.key" -out "$1.pem"
}

certificate() { # NAME AUTHORITY DAYS SUBJECT
    openssl req -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes \
        -subj "/CN=$1" -keyout "$1.key" -out "$1.request"
    echo "subjectAltName = $4" >"$1.extensions"
    openssl x509 -req -in "$1.request" -CA "$2.pem" -CAkey "$2.key" -set_serial "$$" \
        -days "$3" -extfile "$1.extensions" -out "$1.pem"
}

authority authority
authority nobody
certificate good authority 2 IP:127.0.0.1
certificate stranger nobody 2 IP:127.0.0.1
certificate elsewhere authority 2 DNS:elsewhere.example
certificate expired authority -1 IP:127.0.0.1
