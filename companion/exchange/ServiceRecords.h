#pragma once

#include <QRandomGenerator>

#include "companion/exchange/ExchangeConfiguration.h"

// Asks the domain name system; a ServiceLookup.
void lookUpServices(const QString& name, QObject* context, ServicesFound found);

// In the order in which they are to be tried: lowest priority first, within one priority drawn by weight.
// Records without a target are left out.
QList<ServiceRecord> inOrderOfTrial(QList<ServiceRecord> records, QRandomGenerator& random);
